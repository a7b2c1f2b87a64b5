// SPDX-License-Identifier: MIT
#pragma once

#include "OdEdCommand.h"
#include "OdEdCommandStack.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// The commands that the command line knows, by their names.
class CKvCommandStack : public OdEdCommandStack
{
public:
    void addCommand(OdEdCommand *command) override;
    void removeCommand(OdEdCommand *command) override;
    void addReactor(OdEdCommandStackReactor *reactor) override;
    void removeReactor(OdEdCommandStackReactor *reactor) override;

    /// @param name global (with the underscore), local, or global without the underscore; letter
    /// case aside.
    /// @return null when there is none.
    OdSmartPtr<OdEdCommand> find(const QString &name) const;
    /// Local names, in alphabetical order.
    QStringList names() const;

    /// Calls action for each reactor that is there, also when some go meanwhile.
    void tell(const std::function<void(OdEdCommandStackReactor &)> &action);

private:
    std::vector<OdSmartPtr<OdEdCommand>> m_commands;
    std::vector<OdEdCommandStackReactor *> m_reactors;
};
