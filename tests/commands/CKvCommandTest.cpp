// SPDX-License-Identifier: MIT
#include "CKvCommandTest.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>

namespace
{

void pressIn(const QDialog &dialog, int standardButton)
{
    dialog.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))
        ->button(QDialogButtonBox::StandardButton(standardButton))
        ->click();
}

} // namespace

CKvCommandTest::CKvCommandTest()
{
    manager.emplace();
    SetKvStandardManager(&*manager);
    manager->addPlugin(CKvStdsPluginsPtr(&plugin));
}

CKvCommandTest::~CKvCommandTest()
{
    document.reset();
    SetKvStandardManager(nullptr);
}

QString CKvCommandTest::file(const char *name) const
{
    QDir().mkpath(QFileInfo(path(name)).absolutePath());
    CKvDrawingBuilder().saveTo(path(name));
    return path(name);
}

CKvDrawingBuilder CKvCommandTest::drawing(const QStringList &files)
{
    CKvDrawingBuilder drawing;
    drawing.layer("WALLS").color(1);
    if (!files.isEmpty()) {
        drawing.standardsFiles(files);
    }
    return drawing;
}

void CKvCommandTest::withoutManager()
{
    SetKvStandardManager(nullptr);
    manager.reset();
}

void CKvCommandTest::press(const char *className, int standardButton)
{
    user.answer(QLatin1String(className),
                [standardButton](QDialog &dialog) { pressIn(dialog, standardButton); });
}

void CKvCommandTest::uncheckAndPress(const char *className, int standardButton)
{
    user.answer(QLatin1String(className), [standardButton](QDialog &dialog) {
        dialog.findChild<QCheckBox *>()->click();
        pressIn(dialog, standardButton);
    });
}

void CKvCommandTest::closeVerification()
{
    user.answer(QStringLiteral("CKvVerfiyCompleteMessage"),
                [](QDialog &dialog) { dialog.reject(); });
    press("CKvVerifyStandards", QDialogButtonBox::Close);
}

std::vector<std::string> CKvCommandTest::shown() const
{
    std::vector<std::string> names;
    for (const QString &name : user.shown()) {
        // The summary of a walk is part of the verification.
        if (name != QLatin1String("CKvVerfiyCompleteMessage")) {
            names.push_back(name.toStdString());
        }
    }
    return names;
}

std::vector<std::string> CKvCommandTest::openedStandards() const
{
    std::vector<std::string> found;
    for (const std::string &call : calls) {
        if (call.find(".openStandards") != std::string::npos) {
            found.push_back(call);
        }
    }
    return found;
}
