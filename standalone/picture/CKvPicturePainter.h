// SPDX-License-Identifier: MIT
#pragma once

#include "CKvLineBatch.h"
#include "CKvPicture.h"
#include "CKvPictureView.h"

#include <QImage>
#include <QPainter>

#include <vector>

/// Paints a picture into an image, in slices so that a window stays awake meanwhile. The image
/// shows what was painted so far after each slice.
class CKvPicturePainter
{
public:
    /// @param picture must outlive the painter and not change meanwhile.
    /// @param image of the size of the view; it is cleared to the background.
    CKvPicturePainter(const CKvPicture &picture, const CKvPictureView &view, QImage &image);
    CKvPicturePainter(const CKvPicturePainter &) = delete;
    CKvPicturePainter &operator=(const CKvPicturePainter &) = delete;

    /// Works for about that long.
    /// @return true when all is painted.
    bool advance(int milliseconds);

private:
    /// What an insertion gives to the things in its block.
    struct Inherited {
        std::uint32_t layer = 0;
        QRgb color = 0;
        int lineWeight = -3;
        int lineStyle = 0;
        double lineStyleScale = 1;
        bool isSelected = false;
    };
    struct Walk {
        std::uint32_t block = 0;
        std::size_t next = 0;
        QTransform toPixels;
        /// Pixels of a drawing unit.
        double scale = 1;
        Inherited inherited;
    };

    void paintItem(const CKvPictureItem &item, const Walk &walk);
    Inherited resolved(const CKvPictureItem &item, const Walk &walk) const;
    QRgb colorOf(const CKvPictureColor &color, const CKvPictureLayer &layer, QRgb byBlock) const;
    void usePen(const Inherited &look, const Walk &walk);
    void paintPath(const CKvPictureItem &item, const Walk &walk, const Inherited &look);
    void paintArc(const CKvPictureItem &item, const Walk &walk);
    void paintRay(const CKvPictureItem &item, const Walk &walk);
    void paintText(const CKvPictureItem &item, const Walk &walk, const Inherited &look);
    void paintArea(const CKvPictureItem &item, const Walk &walk, const Inherited &look);
    void enterInsert(const CKvPictureItem &item, const Walk &walk, const Inherited &look);

    const CKvPicture &m_picture;
    const CKvPictureView m_view;
    QPainter m_painter;
    CKvBox m_sight;
    CKvLineBatch m_batch;
    std::vector<Walk> m_walks;
    /// Pixels that a speck was painted in.
    std::vector<bool> m_specks;
};
