// SPDX-License-Identifier: MIT
#pragma once

#include "CKvFileImage.h"
#include "OdDbHostAppServices.h"

#include <QString>

#include <map>

/// Opens drawings for the checks, and remembers what became of each path: the checks pass over a
/// file that can't be read, the program must report it.
class CKvStandaloneAppServices : public OdDbHostAppServices
{
public:
    enum class ReadStatus { NotAsked, Read, NotFound, Failed };
    struct ReadOutcome {
        ReadStatus status = ReadStatus::NotAsked;
        /// File, line and reason; empty unless failed.
        QString error;
        /// What was read last; null unless read.
        OdDbDatabasePtr database;
    };

    explicit CKvStandaloneAppServices(
        CKvFileImage::Holding holding = CKvFileImage::Holding::Mapped);

    OdString applicationTitle() const override { return OdString("KvStandards"); }
    OdDbDatabasePtr readFile(const OdString &path,
                             bool allowCodePageConversion,
                             bool partialLoad,
                             int shareMode,
                             const OdString &password) override;

    /// What became of the last attempt to read this very path.
    ReadOutcome outcome(const QString &path) const;
    /// Forgets all outcomes and lets their drawings go.
    void forgetOutcomes() { m_outcomes.clear(); }

private:
    CKvFileImage::Holding m_holding;
    std::map<QString, ReadOutcome> m_outcomes;
};
