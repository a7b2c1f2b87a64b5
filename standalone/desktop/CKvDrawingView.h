// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDocumentPicture.h"
#include "CKvPicturePainter.h"

#include <QImage>
#include <QPointF>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <vector>

class CKvHostDocument;

/// Shows a document's drawing. The wheel zooms around the pointer, the middle button and the arrow
/// keys move the drawing, a click selects.
class CKvDrawingView : public QWidget
{
    Q_OBJECT

public:
    /// @param document must outlive the view.
    explicit CKvDrawingView(CKvHostDocument &document, QWidget *parent = nullptr);
    ~CKvDrawingView() override;

    CKvHostDocument &document() const { return m_document; }
    CKvDocumentPicture &picture() { return m_picture; }

    void zoomExtents();
    /// @param factor above 1 brings things nearer.
    void zoomBy(double factor);
    void zoomWindow(QPointF corner, QPointF opposite);
    /// Back to what was shown before the last zoom.
    void zoomPrevious();
    void pan(QPointF pixels);
    void setShowsLineWeights(bool areShown);
    bool showsLineWeights() const { return m_showsLineWeights; }
    /// Picks one entity, or none, in place of what was selected.
    void selectAt(QPoint pixel);
    /// While a command waits for a point, a click gives it one.
    void setPicksPoints(bool picks);

    QPointF toDrawing(QPointF pixel) const;
    QPointF toPixel(QPointF place) const;
    /// Pixels of a drawing unit.
    double scale() const { return m_scale; }
    /// What the view shows, painted to the end.
    QImage toImage();

signals:
    void pointerMoved(QPointF place);
    void pointPicked(QPointF place);
    /// Keys that are meant for the command line.
    void typed(QKeyEvent *event);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Place {
        QPointF center;
        double scale = 1;
    };

    void show(const Place &place);
    void remember();
    void zoomAround(QPointF pixel, double factor);
    void startPainting();
    void paintSlice();
    QTransform toPixels() const;
    CKvPictureView currentView() const;

    CKvHostDocument &m_document;
    CKvDocumentPicture m_picture;
    QPointF m_center;
    double m_scale = 1;
    std::vector<Place> m_before;
    bool m_hasPlace = false;
    bool m_showsLineWeights = false;
    bool m_picksPoints = false;
    QPoint m_dragFrom;
    bool m_isDragging = false;
    /// What was painted last, and from where.
    QImage m_shown;
    QTransform m_shownToPixels;
    QImage m_next;
    QTransform m_nextToPixels;
    std::unique_ptr<CKvPicturePainter> m_painter;
    QTimer m_paintTimer;
};
