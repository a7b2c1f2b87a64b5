// SPDX-License-Identifier: MIT
#include "CKvUndoStack.h"

#include "CKvObjectSlot.h"

#include <algorithm>
#include <iterator>

namespace
{

/// Writing the drawing raises the seed of the handles in the header: no change of anybody's, but
/// part of the step whose new objects needed the handles.
bool isSeedOnly(const CKvChangeStep &changes)
{
    return std::all_of(changes.objects.begin(), changes.objects.end(), [](const auto &before) {
        return before.slot->role == CKvObjectSlot::Role::Header;
    });
}

} // namespace

CKvUndoStack::CKvUndoStack(CKvDrawingStore &store)
    : m_store(store)
    , m_journal(store)
{
}

void CKvUndoStack::endStep(const QString &name)
{
    CKvChangeStep changes = m_journal.take();
    if (changes.isEmpty()) {
        return;
    }
    if (name.isEmpty() && isSeedOnly(changes)) {
        addToLast(std::move(changes));
        return;
    }
    // What was taken back is gone once something else happens.
    m_isSavedGone = m_isSavedGone || m_saved > m_done;
    m_steps.resize(m_done);
    m_steps.push_back({ name, std::move(changes) });
    ++m_done;
}

void CKvUndoStack::addToLast(CKvChangeStep changes)
{
    if (m_done > 0) {
        auto &objects = m_steps[m_done - 1].changes.objects;
        objects.insert(objects.end(),
                       std::make_move_iterator(changes.objects.begin()),
                       std::make_move_iterator(changes.objects.end()));
    }
}

QString CKvUndoStack::undo()
{
    endStep(QString());
    if (!canUndo()) {
        return {};
    }
    Step &step = m_steps[--m_done];
    step.changes.swap(m_store);
    return step.name.isEmpty() ? QStringLiteral("EDIT") : step.name;
}

QString CKvUndoStack::redo()
{
    endStep(QString());
    if (!canRedo()) {
        return {};
    }
    Step &step = m_steps[m_done++];
    step.changes.swap(m_store);
    return step.name.isEmpty() ? QStringLiteral("EDIT") : step.name;
}

void CKvUndoStack::noteSaved()
{
    addToLast(m_journal.take());
    m_saved = m_done;
    m_isSavedGone = false;
}

bool CKvUndoStack::isModified()
{
    return m_isSavedGone || m_saved != m_done || m_journal.hasChanges();
}
