// SPDX-License-Identifier: MIT
#include "CKvEntityBuilder.h"

CKvEntityBuilder::CKvEntityBuilder(const QString &type)
    : CKvObjectBuilder(type, QString())
{
    layer("0");
}

CKvEntityBuilder &CKvEntityBuilder::layer(const CKvDxfValue &name)
{
    m_commonTags.set(8, name);
    return *this;
}

CKvEntityBuilder &CKvEntityBuilder::lineStyle(const CKvDxfValue &name)
{
    m_commonTags.set(6, name);
    return *this;
}

CKvEntityBuilder &CKvEntityBuilder::attribute(const CKvDxfValue &tag, const CKvDxfValue &text)
{
    CKvEntityBuilder child(QStringLiteral("ATTRIB"));
    child.group(10, 0.0).group(20, 0.0).group(30, 0.0).group(40, 2.5);
    child.group(1, text).group(2, tag).group(70, 0);
    return addChild(child);
}

CKvEntityBuilder &CKvEntityBuilder::vertex(double x, double y)
{
    CKvEntityBuilder child(QStringLiteral("VERTEX"));
    child.group(10, x).group(20, y).group(30, 0.0);
    return addChild(child);
}

CKvEntityBuilder &CKvEntityBuilder::addChild(const CKvEntityBuilder &child)
{
    if (m_endMark.empty()) {
        // Attributes and vertices follow, up to the end mark.
        set(66, 1);
        m_endMark.emplace_back(QStringLiteral("SEQEND"));
    }
    m_children.push_back(child);
    return *this;
}

CKvEntityBuilder &CKvEntityBuilder::lastChild()
{
    return m_children.empty() ? *this : m_children.back();
}

CKvEntityBuilder &CKvEntityBuilder::endMark()
{
    return m_endMark.empty() ? *this : m_endMark.back();
}
