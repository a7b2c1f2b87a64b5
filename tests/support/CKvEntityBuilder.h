// SPDX-License-Identifier: MIT
#pragma once

#include "CKvObjectBuilder.h"

#include <list>

/// An entity of any type, with its attributes or vertices. Its layer is 0 unless it is told.
class CKvEntityBuilder : public CKvObjectBuilder<CKvEntityBuilder>
{
public:
    explicit CKvEntityBuilder(const QString &type);

    CKvEntityBuilder &layer(const CKvDxfValue &name);
    CKvEntityBuilder &lineStyle(const CKvDxfValue &name);
    /// Group 7, for the entities that have it.
    CKvEntityBuilder &textStyle(const CKvDxfValue &name) { return set(7, name); }
    /// Group 3, for the entities that have it.
    CKvEntityBuilder &dimStyle(const CKvDxfValue &name) { return set(3, name); }

    /// Adds an attribute to an insertion.
    CKvEntityBuilder &attribute(const CKvDxfValue &tag, const CKvDxfValue &text);
    /// Adds a vertex to a polyline.
    CKvEntityBuilder &vertex(double x, double y);
    /// The attribute or vertex added last, to change it; itself without children.
    CKvEntityBuilder &lastChild();
    /// The SEQEND behind attributes and vertices, to change it.
    CKvEntityBuilder &endMark();

    /// Groups of the part that all entities have: layer, line style, colour.
    const CKvDxfTags &commonTags() const { return m_commonTags; }
    const std::list<CKvEntityBuilder> &children() const { return m_children; }
    /// Holds one entity when there are children.
    const std::list<CKvEntityBuilder> &endMarks() const { return m_endMark; }

private:
    CKvEntityBuilder &addChild(const CKvEntityBuilder &child);

    CKvDxfTags m_commonTags;
    std::list<CKvEntityBuilder> m_children;
    std::list<CKvEntityBuilder> m_endMark;
};
