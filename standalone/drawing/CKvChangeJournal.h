// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

class CKvDrawingStore;
class CKvObjectSlot;

/// What some objects were before they changed.
class CKvChangeStep
{
public:
    struct Before {
        CKvObjectSlot *slot = nullptr;
        /// Null for an object that was its slice of the file.
        std::unique_ptr<std::string> own;
        std::uint64_t handle = 0;
        std::uint16_t movedTo = 0;
        bool isErased = false;
        /// The object came with the step; before, there was none.
        bool isNew = false;
    };

    std::vector<Before> objects;

    bool isEmpty() const { return objects.empty(); }
    /// Gives all objects back what they were, and keeps what they are now: a second call brings
    /// them forward again. Reactors hear of each object as of any other change.
    void swap(CKvDrawingStore &store);
};

/// Notes what a drawing's objects were before each change, so that it costs what was changed and
/// not what the drawing holds.
class CKvChangeJournal
{
public:
    /// Notes from now on.
    /// @param store must outlive the journal.
    explicit CKvChangeJournal(CKvDrawingStore &store);
    ~CKvChangeJournal();
    CKvChangeJournal(const CKvChangeJournal &) = delete;
    CKvChangeJournal &operator=(const CKvChangeJournal &) = delete;

    /// To be called by the store before a slot changes for the first time, and later as often as it
    /// likes.
    void willChange(CKvObjectSlot &slot);
    /// @return what has changed since the last call; what changed and is as it was is left out.
    CKvChangeStep take();
    /// False when nothing has changed since take.
    bool hasChanges();

private:
    friend class CKvChangeStep;

    void noteNewObjects();

    CKvDrawingStore &m_store;
    CKvChangeStep m_step;
    std::unordered_set<const CKvObjectSlot *> m_noted;
    /// Objects from this one on came since take.
    std::size_t m_firstNew = 0;
    bool m_isSwapping = false;
};
