// SPDX-License-Identifier: MIT
#include "CKvCommandStack.h"

#include "OdEdCommandStackReactor.h"
#include "OdError.h"
#include "tellReactors.h"

#include <algorithm>

namespace
{

bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace

void CKvCommandStack::addCommand(OdEdCommand *command)
{
    if (!command) {
        throw OdError(OdResult::kInvalidInput, "There is no command to add.");
    }
    const QString name = command->globalName().toQString();
    const bool isThere = std::any_of(m_commands.begin(), m_commands.end(), [&](const auto &other) {
        return isSame(other->globalName().toQString(), name);
    });
    if (isThere) {
        throw OdError(OdResult::kDuplicateName,
                      "There is a command \"" + name.toStdString() + "\" already.");
    }
    m_commands.emplace_back(command);
    tell([&](OdEdCommandStackReactor &reactor) { reactor.commandAdded(command); });
}

void CKvCommandStack::removeCommand(OdEdCommand *command)
{
    const auto isThis = [&](const auto &other) { return other.get() == command; };
    if (std::none_of(m_commands.begin(), m_commands.end(), isThis)) {
        return;
    }
    tell([&](OdEdCommandStackReactor &reactor) { reactor.commandWillBeRemoved(command); });
    m_commands.erase(std::remove_if(m_commands.begin(), m_commands.end(), isThis),
                     m_commands.end());
}

void CKvCommandStack::addReactor(OdEdCommandStackReactor *reactor)
{
    if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end()) {
        m_reactors.push_back(reactor);
    }
}

void CKvCommandStack::removeReactor(OdEdCommandStackReactor *reactor)
{
    m_reactors.erase(std::remove(m_reactors.begin(), m_reactors.end(), reactor), m_reactors.end());
}

OdSmartPtr<OdEdCommand> CKvCommandStack::find(const QString &name) const
{
    for (const OdSmartPtr<OdEdCommand> &command : m_commands) {
        const QString global = command->globalName().toQString();
        const QString bare = global.startsWith(QLatin1Char('_')) ? global.mid(1) : global;
        if (isSame(global, name) || isSame(command->localName().toQString(), name)
            || isSame(bare, name)) {
            return command;
        }
    }
    return {};
}

QStringList CKvCommandStack::names() const
{
    QStringList names;
    for (const OdSmartPtr<OdEdCommand> &command : m_commands) {
        names << command->localName().toQString();
    }
    names.sort();
    return names;
}

void CKvCommandStack::tell(const std::function<void(OdEdCommandStackReactor &)> &action)
{
    tellReactors(m_reactors, action);
}
