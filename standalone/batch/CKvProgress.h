// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchOptions.h"

/// Tells on standard error how far a run has come. On a terminal it is one line that changes.
class CKvProgress
{
public:
    /// @param drawings how many there are in all.
    CKvProgress(CKvWhen when, bool isQuiet, int drawings);
    ~CKvProgress();
    CKvProgress(const CKvProgress &) = delete;
    CKvProgress &operator=(const CKvProgress &) = delete;

    /// Takes the line away, so that other output does not run into it.
    void clear();
    void drawingDone(const QString &path);

private:
    bool m_isShown;
    bool m_isTerminal;
    bool m_hasLine = false;
    int m_drawings;
    int m_done = 0;
};
