// SPDX-License-Identifier: MIT
#include "desktopOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

CKvDesktopOptions desktopOptions(const QStringList &arguments)
{
    QCoreApplication::setApplicationVersion(QStringLiteral(KV_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("kvdesk", "Shows drawings and checks their standards."));
    parser.addHelpOption();
    parser.addVersionOption();
    const auto text = [](const char *latin1) { return QString::fromLatin1(latin1); };
    const QCommandLineOption script(text("script"),
                                    text("Run the commands in <file> once the drawings are open."),
                                    text("file"));
    const QCommandLineOption settings(
        text("settings"), text("Keep the settings in <file>."), text("file"));
    const QCommandLineOption module(text("module"),
                                    text("Load the module <file>, not the one beside the program."),
                                    text("file"));
    const QCommandLineOption noModule(text("no-module"), text("Load no module."));
    const QCommandLineOption palette(
        text("palette"), text("Use the light or the dark colours."), text("light|dark"));
    parser.addOptions({ script, settings, module, noModule, palette });
    parser.addPositionalArgument(text("drawing"), text("Drawings to open."), text("[drawing...]"));
    parser.process(arguments);
    CKvDesktopOptions options;
    options.scriptFile = parser.value(script);
    options.settingsFile = parser.value(settings);
    options.moduleFile = parser.value(module);
    options.loadsModule = !parser.isSet(noModule);
    options.palette = parser.value(palette);
    options.drawings = parser.positionalArguments();
    return options;
}
