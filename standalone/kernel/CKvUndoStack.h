// SPDX-License-Identifier: MIT
#pragma once

#include "CKvChangeJournal.h"

#include <QString>

#include <vector>

/// The changes of one drawing, a step for each command, to be taken back and brought again.
class CKvUndoStack
{
public:
    /// @param store must outlive the stack.
    explicit CKvUndoStack(CKvDrawingStore &store);

    /// Ends the step: what has changed since the last one is taken back together.
    /// @param name of the command.
    void endStep(const QString &name);
    /// @return the command whose changes were taken back; empty when there is none.
    QString undo();
    /// @return the command whose changes were brought again; empty when there is none.
    QString redo();
    bool canUndo() const { return m_done > 0; }
    bool canRedo() const { return m_done < m_steps.size(); }

    /// What saving itself has changed belongs to the step before.
    void noteSaved();
    /// True when the drawing is not as it was saved, or read.
    bool isModified();

private:
    struct Step {
        QString name;
        CKvChangeStep changes;
    };

    void addToLast(CKvChangeStep changes);

    CKvDrawingStore &m_store;
    CKvChangeJournal m_journal;
    std::vector<Step> m_steps;
    /// How many of the steps are in force.
    std::size_t m_done = 0;
    std::size_t m_saved = 0;
    bool m_isSavedGone = false;
};
