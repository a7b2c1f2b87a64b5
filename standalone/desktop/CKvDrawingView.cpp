// SPDX-License-Identifier: MIT
#include "CKvDrawingView.h"

#include "CKvDrawingStore.h"
#include "CKvHostDocument.h"
#include "pickEntity.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace
{

constexpr int kSliceMs = 25;
constexpr int kPickReach = 6;
constexpr double kMargin = 1.06;
constexpr double kStepOfKey = 0.1;
constexpr double kFactorOfKey = 1.25;
constexpr std::size_t kMostPlaces = 50;
constexpr std::size_t kMostSmoothItems = 200000;
constexpr double kSmallestScale = 1e-12;
constexpr double kLargestScale = 1e12;

} // namespace

CKvDrawingView::CKvDrawingView(CKvHostDocument &document, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_picture(*document.GetKvDatabase())
{
    setObjectName(QStringLiteral("DrawingView"));
    setAccessibleName(tr("Drawing %1").arg(document.title()));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::CrossCursor);
    setMinimumSize(200, 150);
    const std::optional<CKvTag> weights =
        document.GetKvDatabase()->store().header().find("$LWDISPLAY");
    m_showsLineWeights = weights && weights->integer() != 0;
    connect(&m_picture, &CKvDocumentPicture::changed, this, [this] {
        if (!m_hasPlace) {
            zoomExtents();
        }
        startPainting();
    });
    connect(&m_paintTimer, &QTimer::timeout, this, &CKvDrawingView::paintSlice);
    document.selectionSet()->onChange([this] { startPainting(); });
}

CKvDrawingView::~CKvDrawingView()
{
    m_document.selectionSet()->onChange({});
}

QTransform CKvDrawingView::toPixels() const
{
    return QTransform::fromTranslate(-m_center.x(), -m_center.y())
        * QTransform::fromScale(m_scale, -m_scale)
        * QTransform::fromTranslate(width() / 2.0, height() / 2.0);
}

QPointF CKvDrawingView::toDrawing(QPointF pixel) const
{
    return toPixels().inverted().map(pixel);
}

QPointF CKvDrawingView::toPixel(QPointF place) const
{
    return toPixels().map(place);
}

void CKvDrawingView::show(const Place &place)
{
    m_center = place.center;
    m_scale = std::clamp(place.scale, kSmallestScale, kLargestScale);
    startPainting();
}

void CKvDrawingView::remember()
{
    m_before.push_back({ m_center, m_scale });
    if (m_before.size() > kMostPlaces) {
        m_before.erase(m_before.begin());
    }
}

void CKvDrawingView::zoomExtents()
{
    const CKvPicture *picture = m_picture.picture();
    const CKvBox bounds = picture ? picture->visibleBounds() : CKvBox();
    if (m_hasPlace) {
        remember();
    }
    m_hasPlace = picture != nullptr;
    if (!bounds.isEmpty()) {
        zoomWindow({ bounds.left, bounds.bottom }, { bounds.right, bounds.top });
        m_before.pop_back();
    }
}

void CKvDrawingView::zoomWindow(QPointF corner, QPointF opposite)
{
    remember();
    const double wide = std::abs(opposite.x() - corner.x()) * kMargin;
    const double high = std::abs(opposite.y() - corner.y()) * kMargin;
    double scale = kLargestScale;
    scale = wide > 0 ? std::min(scale, width() / wide) : scale;
    scale = high > 0 ? std::min(scale, height() / high) : scale;
    show({ (corner + opposite) / 2, scale < kLargestScale ? scale : 1 });
}

void CKvDrawingView::zoomBy(double factor)
{
    remember();
    show({ m_center, m_scale * factor });
}

void CKvDrawingView::zoomPrevious()
{
    if (!m_before.empty()) {
        const Place place = m_before.back();
        m_before.pop_back();
        show(place);
    }
}

void CKvDrawingView::zoomAround(QPointF pixel, double factor)
{
    const QPointF place = toDrawing(pixel);
    const double scale = std::clamp(m_scale * factor, kSmallestScale, kLargestScale);
    const QPointF offset = pixel - QPointF(width() / 2.0, height() / 2.0);
    show({ place - QPointF(offset.x(), -offset.y()) / scale, scale });
}

void CKvDrawingView::pan(QPointF pixels)
{
    show({ m_center - QPointF(pixels.x(), -pixels.y()) / m_scale, m_scale });
}

void CKvDrawingView::setShowsLineWeights(bool areShown)
{
    m_showsLineWeights = areShown;
    startPainting();
}

void CKvDrawingView::setPicksPoints(bool picks)
{
    m_picksPoints = picks;
}

CKvPictureView CKvDrawingView::currentView() const
{
    const double ratio = devicePixelRatioF();
    CKvPictureView view;
    view.toPixels = toPixels() * QTransform::fromScale(ratio, ratio);
    view.size = (QSizeF(size()) * ratio).toSize();
    view.background = palette().color(QPalette::Base);
    view.foreground = palette().color(QPalette::Text);
    view.highlight = palette().color(QPalette::Highlight);
    view.pixelsPerMillimetre = logicalDpiX() * ratio / 25.4;
    view.showsLineWeights = m_showsLineWeights;
    const CKvPicture *picture = m_picture.picture();
    view.isSmooth = picture && picture->modelSpace().items.size() < kMostSmoothItems;
    for (const OdDbObjectId id : m_document.selectionSet()->selectedObjectIds()) {
        view.selected.insert(id.slot());
    }
    return view;
}

void CKvDrawingView::startPainting()
{
    m_painter.reset();
    const CKvPicture *picture = m_picture.picture();
    if (!picture || size().isEmpty()) {
        update();
        return;
    }
    const CKvPictureView view = currentView();
    m_next = QImage(view.size, QImage::Format_RGB32);
    m_nextToPixels = toPixels();
    m_painter = std::make_unique<CKvPicturePainter>(*picture, view, m_next);
    paintSlice();
}

void CKvDrawingView::paintSlice()
{
    if (m_painter && m_painter->advance(kSliceMs)) {
        m_painter.reset();
        m_next.setDevicePixelRatio(devicePixelRatioF());
        m_shown = m_next;
        m_shownToPixels = m_nextToPixels;
    }
    if (m_painter) {
        m_paintTimer.start(0);
    } else {
        m_paintTimer.stop();
    }
    update();
}

QImage CKvDrawingView::toImage()
{
    m_picture.finish();
    while (m_painter) {
        paintSlice();
    }
    return m_shown;
}

void CKvDrawingView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    if (!m_shown.isNull()) {
        // Until the new image is there the old one moves along.
        painter.setTransform(m_shownToPixels.inverted() * toPixels());
        painter.drawImage(QPointF(), m_shown);
        painter.resetTransform();
    }
    if (m_picture.isBuilding() && !m_picture.picture()) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(rect(), Qt::AlignCenter, tr("Reading the drawing…"));
    }
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void CKvDrawingView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_hasPlace && event->oldSize().isEmpty()) {
        zoomExtents();
    }
    startPainting();
}

void CKvDrawingView::wheelEvent(QWheelEvent *event)
{
    constexpr double kUnitsOfNotch = 120;
    zoomAround(event->position(), std::pow(kFactorOfKey, event->angleDelta().y() / kUnitsOfNotch));
    event->accept();
}

void CKvDrawingView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton) {
        m_isDragging = true;
        m_dragFrom = event->pos();
        setCursor(Qt::ClosedHandCursor);
    } else if (event->button() == Qt::LeftButton && m_picksPoints) {
        emit pointPicked(toDrawing(event->pos()));
    } else if (event->button() == Qt::LeftButton) {
        selectAt(event->pos());
    }
}

void CKvDrawingView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_isDragging) {
        pan(event->pos() - m_dragFrom);
        m_dragFrom = event->pos();
    }
    emit pointerMoved(toDrawing(event->pos()));
}

void CKvDrawingView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton) {
        m_isDragging = false;
        setCursor(Qt::CrossCursor);
    }
}

void CKvDrawingView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton) {
        zoomExtents();
    }
}

void CKvDrawingView::selectAt(QPoint pixel)
{
    const CKvPicture *picture = m_picture.picture();
    const CKvObjectSlot *found =
        picture ? pickEntity(*picture, toDrawing(pixel), kPickReach / m_scale) : nullptr;
    OdDbObjectIdArray ids;
    if (found) {
        ids.append(const_cast<CKvObjectSlot *>(found)->id());
    }
    m_document.selectionSet()->select(ids);
}

void CKvDrawingView::keyPressEvent(QKeyEvent *event)
{
    const QPointF step(width() * kStepOfKey, height() * kStepOfKey);
    switch (event->key()) {
    case Qt::Key_Left:
        pan({ step.x(), 0 });
        break;
    case Qt::Key_Right:
        pan({ -step.x(), 0 });
        break;
    case Qt::Key_Up:
        pan({ 0, step.y() });
        break;
    case Qt::Key_Down:
        pan({ 0, -step.y() });
        break;
    case Qt::Key_Plus:
        zoomBy(kFactorOfKey);
        break;
    case Qt::Key_Minus:
        zoomBy(1 / kFactorOfKey);
        break;
    case Qt::Key_Home:
        zoomExtents();
        break;
    default:
        // Whoever types while looking at the drawing means the command line.
        emit typed(event);
        break;
    }
}

void CKvDrawingView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        startPainting();
    }
}
