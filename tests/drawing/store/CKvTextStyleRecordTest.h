// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbTextStyleTable.h"
#include "OdDbTextStyleTableRecord.h"
#include "drawingText.h"
#include "giFromDbTextStyle.h"

#include <gtest/gtest.h>

/// A drawing with one style, "NOTES".
class CKvTextStyleRecordTest : public testing::Test
{
protected:
    OdDbTextStyleTableRecordPtr open(OdDb::OpenMode mode = OdDb::kForRead)
    {
        if (!m_database) {
            m_database = m_drawing.open();
        }
        return OdDbTextStyleTableRecordPtr(
            recordId(m_database->getTextStyleTableId(), "NOTES").openObject(mode));
    }
    /// "Arial bold italic 34 49": typeface, flags, charset, pitch and family.
    std::string font()
    {
        OdString typeface;
        bool isBold = false;
        bool isItalic = false;
        int charset = -1;
        int pitchAndFamily = -1;
        open()->font(typeface, isBold, isItalic, charset, pitchAndFamily);
        return typeface.toQString().toStdString() + (isBold ? " bold" : "")
            + (isItalic ? " italic" : "") + ' ' + std::to_string(charset) + ' '
            + std::to_string(pitchAndFamily);
    }
    bool isShx()
    {
        OdGiTextStyle style;
        giFromDbTextStyle(open()->objectId(), style);
        return (style.flags() & 0x20) != 0;
    }
    /// Lines that a save would change: "-old" and "+new", one behind the other.
    std::string changes() const
    {
        const QList<QByteArray> before = m_drawing.toBytes().split('\n');
        const QList<QByteArray> after = CKvDrawingFile::toBytes(*m_database).split('\n');
        int head = 0;
        while (head < before.size() && head < after.size() && before[head] == after[head]) {
            ++head;
        }
        int tail = 0;
        while (tail < before.size() - head && tail < after.size() - head
               && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
            ++tail;
        }
        std::string text;
        for (int i = head; i < before.size() - tail; ++i) {
            text += '-' + before[i].trimmed().toStdString() + ' ';
        }
        for (int i = head; i < after.size() - tail; ++i) {
            text += '+' + after[i].trimmed().toStdString() + ' ';
        }
        return text;
    }
    OdDbTextStyleTableRecordPtr reopened()
    {
        const QByteArray bytes = CKvDrawingFile::toBytes(*m_database);
        m_database = CKvDrawingFile::fromBytes(bytes);
        return open();
    }

    CKvDrawingBuilder m_drawing;
    OdDbDatabasePtr m_database;
};
