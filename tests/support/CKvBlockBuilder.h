// SPDX-License-Identifier: MIT
#pragma once

#include "CKvEntityBuilder.h"

/// A block, or one of the spaces, with its entities in order. The words for entities return the
/// entity.
class CKvBlockBuilder : public CKvObjectBuilder<CKvBlockBuilder>
{
public:
    explicit CKvBlockBuilder(const QString &name);

    /// Flags of the BLOCK: 4 for an external reference, 1 for an anonymous block.
    CKvBlockBuilder &blockFlags(int flags);
    /// Group 1 of the BLOCK, the file of an external reference.
    CKvBlockBuilder &path(const CKvDxfValue &path);
    /// Group 8 of BLOCK and ENDBLK.
    CKvBlockBuilder &layer(const CKvDxfValue &name);

    CKvEntityBuilder &entity(const CKvDxfValue &type);
    CKvEntityBuilder &line(const CKvDxfValue &layer = "0");
    CKvEntityBuilder &text(const CKvDxfValue &text, const CKvDxfValue &layer = "0");
    CKvEntityBuilder &multilineText(const CKvDxfValue &text, const CKvDxfValue &layer = "0");
    CKvEntityBuilder &insert(const CKvDxfValue &block, const CKvDxfValue &layer = "0");
    /// An old-style polyline; vertex() adds its vertices.
    CKvEntityBuilder &polyline(const CKvDxfValue &layer = "0");
    CKvEntityBuilder &dimension(const CKvDxfValue &dimStyle, const CKvDxfValue &layer = "0");
    CKvEntityBuilder &leader(const CKvDxfValue &dimStyle, const CKvDxfValue &layer = "0");

    const QString &name() const { return m_content.name; }
    int flagsOfBlock() const { return m_flags; }
    const QString &pathOfBlock() const { return m_path; }
    const QString &layerOfBlock() const { return m_layer; }
    const std::list<CKvEntityBuilder> &entities() const { return m_entities; }

private:
    int m_flags = 0;
    QString m_path;
    QString m_layer = QStringLiteral("0");
    std::list<CKvEntityBuilder> m_entities;
};
