// SPDX-License-Identifier: MIT
#pragma once

#include "CKvContractClasses.h"
#include "CKvStandaloneServices.h"
#include "CKvStdsViolation.h"
#include "OdDbDatabase.h"
#include "OdDbEntity.h"
#include "auditText.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <numeric>

/// Lines of one file that the other does not have, each as often as it is missing.
QMap<QByteArray, int> missingLines(const QByteArray &from, const QByteArray &in);
/// The real drawings of a version and newer that can be read.
/// @param version value of $ACADVER; "AC1009" and older ones are all drawings.
/// @param isWanted asked with each drawing.
QStringList drawingsFrom(const char *version,
                         const std::function<bool(const OdDbDatabasePtr &)> &isWanted);
/// What a file holds besides one of its tables and the next free handle; empty for a binary file.
QByteArray withoutTable(const QByteArray &file, const QByteArray &table);
QByteArray contentOf(const QString &path);
/// Counts the entities of all blocks that are not external references.
/// @param name of what an entity is counted for, whatever the letter case; one without is not
/// counted.
/// @return by the names in small letters.
QMap<QString, int> entitiesBy(const OdDbDatabasePtr &drawing,
                              const std::function<QString(const OdDbEntityPtr &)> &name);
/// The counts together.
template <class Counted> int sum(const QMap<Counted, int> &counts)
{
    return std::accumulate(counts.begin(), counts.end(), 0);
}

/// Repairs of real drawings. What other programs find wrong with them afterwards must have been
/// wrong before.
class CKvRealDrawings : public testing::Test
{
protected:
    /// A new file for a drawing: "12-plan-after.dxf".
    QString fileIn(const QString &drawing, const QString &what);
    /// Saves the drawing for expectNoNewErrors.
    /// @param before its file as it was.
    void keepForAudit(const QString &before, const OdDbDatabasePtr &drawing);
    /// Compares what python3-ezdxf finds in all drawings that were kept, before and after.
    void expectNoNewErrors();
    /// Repairs what the audit finds, each violation with the candidate that choose gives (-1:
    /// none).
    OdDbDatabasePtr repairedBy(CKvStdsPlugins &plugin,
                               const QString &path,
                               const QString &standards,
                               const std::function<int(const CKvStdsViolation &)> &choose);

    CKvContractClasses m_classes;
    CKvStandaloneServices m_services;
    QTemporaryDir m_folder;
    QStringList m_pairs;
    int m_repairs = 0;

private:
    int m_files = 0;
};
