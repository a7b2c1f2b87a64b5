// SPDX-License-Identifier: MIT
#include "CKvBlockBuilder.h"

CKvBlockBuilder::CKvBlockBuilder(const QString &name)
    : CKvObjectBuilder(QStringLiteral("BLOCK_RECORD"), name)
{
    flags(0);
}

CKvBlockBuilder &CKvBlockBuilder::blockFlags(int flags)
{
    m_flags = flags;
    return *this;
}

CKvBlockBuilder &CKvBlockBuilder::path(const CKvDxfValue &path)
{
    m_path = path.text;
    return *this;
}

CKvBlockBuilder &CKvBlockBuilder::layer(const CKvDxfValue &name)
{
    m_layer = name.text;
    return *this;
}

CKvEntityBuilder &CKvBlockBuilder::entity(const CKvDxfValue &type)
{
    m_entities.emplace_back(type.text);
    return m_entities.back();
}

CKvEntityBuilder &CKvBlockBuilder::line(const CKvDxfValue &layer)
{
    return entity("LINE")
        .layer(layer)
        .group(10, 0.0)
        .group(20, 0.0)
        .group(30, 0.0)
        .group(11, 1.0)
        .group(21, 1.0)
        .group(31, 0.0);
}

CKvEntityBuilder &CKvBlockBuilder::text(const CKvDxfValue &text, const CKvDxfValue &layer)
{
    return entity("TEXT")
        .layer(layer)
        .group(10, 0.0)
        .group(20, 0.0)
        .group(30, 0.0)
        .group(40, 2.5)
        .group(1, text);
}

CKvEntityBuilder &CKvBlockBuilder::multilineText(const CKvDxfValue &text, const CKvDxfValue &layer)
{
    return entity("MTEXT")
        .layer(layer)
        .group(10, 0.0)
        .group(20, 0.0)
        .group(30, 0.0)
        .group(40, 2.5)
        .group(41, 10.0)
        .group(71, 1)
        .group(1, text);
}

CKvEntityBuilder &CKvBlockBuilder::insert(const CKvDxfValue &block, const CKvDxfValue &layer)
{
    return entity("INSERT").layer(layer).group(2, block).group(10, 0.0).group(20, 0.0).group(30,
                                                                                             0.0);
}

CKvEntityBuilder &CKvBlockBuilder::polyline(const CKvDxfValue &layer)
{
    return entity("POLYLINE").layer(layer).group(10, 0.0).group(20, 0.0).group(30, 0.0);
}

CKvEntityBuilder &CKvBlockBuilder::dimension(const CKvDxfValue &dimStyle, const CKvDxfValue &layer)
{
    return entity("DIMENSION")
        .layer(layer)
        .group(10, 0.0)
        .group(20, 0.0)
        .group(30, 0.0)
        .group(70, 0)
        .dimStyle(dimStyle);
}

CKvEntityBuilder &CKvBlockBuilder::leader(const CKvDxfValue &dimStyle, const CKvDxfValue &layer)
{
    return entity("LEADER")
        .layer(layer)
        .dimStyle(dimStyle)
        .group(76, 2)
        .group(10, 0.0)
        .group(20, 0.0)
        .group(30, 0.0)
        .group(10, 1.0)
        .group(20, 1.0)
        .group(30, 0.0);
}
