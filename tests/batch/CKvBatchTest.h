// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingBuilder.h"

#include <QByteArray>
#include <QFileDevice>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <ostream>
#include <string>

/// What a run of the program gave.
struct CKvBatchRun {
    int status = -1;
    std::string output;
    std::string errors;
};

/// So that a failing expectation shows the whole run.
void PrintTo(const CKvBatchRun &run, std::ostream *out);

/// What stands in the way of a run.
struct CKvRunObstacles {
    enum class Output { None, FullDisk, ReaderGone };
    /// Of standard output.
    Output output = Output::None;
    /// No file may grow beyond this many bytes, as if the disk were full then; negative for none.
    long long largestFile = -1;
    /// The user has no rights beyond those that the files give to everybody.
    bool isUnprivileged = false;
};

/// Runs the program in an empty folder.
class CKvBatchTest : public ::testing::Test
{
protected:
    /// @param input for standard input.
    CKvBatchRun run(const QStringList &arguments, const QByteArray &input = QByteArray()) const;
    /// Sets a variable of the environment for the runs to come.
    void setEnvironment(const QString &name, const QString &value)
    {
        m_environment << name + QLatin1Char('=') + value;
    }

    /// For the runs to come.
    void setObstacles(const CKvRunObstacles &obstacles) { m_obstacles = obstacles; }
    /// @param permissions of a file or folder.
    void setPermissions(const QString &name, QFileDevice::Permissions permissions) const;

    QString path(const QString &name) const { return m_folder.filePath(name); }
    std::string fullPath(const QString &name) const { return path(name).toStdString(); }
    bool exists(const QString &name) const;
    /// Empty when there is no such file.
    QByteArray bytes(const QString &name) const;
    void write(const QString &name, const QByteArray &content) const;
    /// Writes a drawing, with its folder.
    void save(const QString &name, const CKvDrawingBuilder &drawing) const;
    /// The files of a folder and all below, sorted, a blank between.
    std::string files(const QString &folder = QString()) const;

    /// Standards with a layer WALLS (blue, 0.50 mm) and DOORS (green).
    static CKvDrawingBuilder officeStandards();
    /// A drawing with those layers and layer 0.
    static CKvDrawingBuilder cleanDrawing();
    /// A drawing whose layer WALLS is red.
    static CKvDrawingBuilder redWalls();

    /// The JSON that a run printed.
    static nlohmann::ordered_json json(const CKvBatchRun &run);
    /// The first drawing of a JSON report.
    static nlohmann::ordered_json firstDrawing(const CKvBatchRun &run);
    /// "layers.name FLUR" a line, of the first drawing of a JSON report.
    static std::string violations(const CKvBatchRun &run);

private:
    QTemporaryDir m_folder;
    QStringList m_environment;
    CKvRunObstacles m_obstacles;
};
