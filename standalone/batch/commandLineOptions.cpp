// SPDX-License-Identifier: MIT
#include "commandLineOptions.h"

namespace
{

QStringList toStringList(const std::vector<std::string> &texts)
{
    QStringList list;
    for (const std::string &text : texts) {
        list << QString::fromStdString(text);
    }
    return list;
}

} // namespace

CLI::Option *
addText(CLI::App &command, const std::string &name, QString &target, const std::string &description)
{
    return command.add_option_function<std::string>(
        name,
        [&target](const std::string &text) { target = QString::fromStdString(text); },
        description);
}

CLI::Option *addTexts(CLI::App &command,
                      const std::string &name,
                      QStringList &target,
                      const std::string &description)
{
    return command.add_option_function<std::vector<std::string>>(
        name,
        [&target](const std::vector<std::string> &texts) { target = toStringList(texts); },
        description);
}

CLI::Option *addRepeated(CLI::App &command,
                         const std::string &name,
                         QStringList &target,
                         const std::string &description)
{
    return addTexts(command, name, target, description)
        ->take_all()
        ->expected(1)
        ->allow_extra_args(false);
}
