// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <CLI/CLI.hpp>

#include <map>
#include <string>
#include <vector>

/// Adds an option that takes one of some words.
/// @param words, target must outlive the command.
template <class Value>
CLI::Option *addChoice(CLI::App &command,
                       const std::string &name,
                       const std::map<std::string, Value> &words,
                       Value &target,
                       const std::string &description)
{
    std::vector<std::string> all;
    all.reserve(words.size());
    for (const auto &[word, value] : words) {
        all.push_back(word);
    }
    return command
        .add_option_function<std::string>(
            name,
            [&target, &words](const std::string &word) { target = words.at(word); },
            description)
        ->check(CLI::IsMember(all));
}

/// Adds an option that takes a text.
/// @param target must outlive the command.
CLI::Option *addText(CLI::App &command,
                     const std::string &name,
                     QString &target,
                     const std::string &description);

/// Adds a list of arguments.
/// @param target must outlive the command.
CLI::Option *addTexts(CLI::App &command,
                      const std::string &name,
                      QStringList &target,
                      const std::string &description);

/// Adds an option that takes one text and may be given several times. An argument behind it is no
/// second text for it.
/// @param target must outlive the command.
CLI::Option *addRepeated(CLI::App &command,
                         const std::string &name,
                         QStringList &target,
                         const std::string &description);
