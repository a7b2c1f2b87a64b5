// SPDX-License-Identifier: MIT
#include "standardsFileState.h"

#include "CKvDrawingFile.h"
#include "CKvDxfError.h"
#include "CKvStandardsFiles.h"

#include <QCoreApplication>
#include <QDir>

namespace
{

QString translated(const char *text)
{
    return QCoreApplication::translate("CKvStandardsSettingsDlg", text);
}

/// Empty for a drawing.
QString reasonOf(const QString &path)
{
    try {
        CKvDrawingFile::open(path, CKvFileImage::Holding::Mapped);
    } catch (const CKvDxfError &error) {
        return error.text();
    }
    return {};
}

} // namespace

CKvStandardsFileState
standardsFileState(const QString &listed, OdDbDatabase &database, CKvSystemServices &services)
{
    using Kind = CKvStandardsFileState::Kind;
    CKvStandardsFileState state;
    state.foundPath = CKvStandardsFiles::find(CKvString(listed), database, services).toQString();
    QString plain = listed;
    plain.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (state.foundPath.isEmpty()) {
        state.text = translated("missing");
        return state;
    }
    state.reason = reasonOf(state.foundPath);
    if (!state.reason.isEmpty()) {
        state.kind = Kind::Unreadable;
        state.text = translated("unreadable");
    } else if (state.foundPath == plain) {
        state.kind = Kind::AtItsPath;
        state.text = translated("found");
    } else {
        state.kind = Kind::FoundElsewhere;
        state.text = translated("found elsewhere");
    }
    return state;
}
