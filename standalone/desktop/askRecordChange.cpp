// SPDX-License-Identifier: MIT
#include "askRecordChange.h"

#include "CKvHostDocument.h"
#include "CKvRecordsPanel.h"
#include "OdDbDimStyleTableRecord.h"
#include "dimSettings.h"
#include "lineStyleFiles.h"
#include "lineweightNames.h"
#include "readLineTypeFile.h"
#include "recordChanges.h"
#include "takeWord.h"

#include <QInputDialog>

#include <algorithm>

namespace
{

using Answer = std::optional<QString>;

/// An entry of the menu without its dots.
QString titleOf(const CKvRecordChange &change)
{
    QString title = CKvRecordsPanel::tr(change.label);
    title.remove(QChar(0x2026));
    return title;
}

/// None for an answer that changes nothing.
Answer askText(QWidget *parent, const QString &title, const QString &label, const QString &present)
{
    bool isGiven = false;
    const QString text =
        QInputDialog::getText(parent, title, label, QLineEdit::Normal, present, &isGiven);
    return isGiven && text != present ? Answer(text) : std::nullopt;
}

enum class Choice { OnlyListed, AnyText };

Answer askItem(QWidget *parent,
               const QString &title,
               const QString &label,
               const QStringList &items,
               const QString &present,
               Choice choice = Choice::OnlyListed)
{
    bool isGiven = false;
    const int at = int(std::max(items.indexOf(present), 0));
    const QString item =
        QInputDialog::getItem(parent, title, label, items, at, choice == Choice::AnyText, &isGiven);
    return isGiven && item != present && !item.isEmpty() ? Answer(item) : std::nullopt;
}

QStringList colorNames(const QString &present)
{
    QStringList names = { QStringLiteral("red"),   QStringLiteral("yellow"),
                          QStringLiteral("green"), QStringLiteral("cyan"),
                          QStringLiteral("blue"),  QStringLiteral("magenta"),
                          QStringLiteral("white") };
    if (!names.contains(present)) {
        names.prepend(present);
    }
    return names;
}

QStringList lineStyleNames(const CKvHostDocument &document)
{
    QStringList names;
    for (const CKvRecordRow &row : recordRows(document)) {
        const bool isOwn = row.kind == CKvRecordKind::LineStyle
            && row.id != document.GetKvDatabase()->getLinetypeByLayerId()
            && row.id != document.GetKvDatabase()->getLinetypeByBlockId();
        if (isOwn) {
            names << row.name;
        }
    }
    return names;
}

QStringList lineWeightNames()
{
    constexpr int kWidest = 211;
    QStringList names;
    for (int weight = OdDb::kLineWeightByDefault; weight <= kWidest; ++weight) {
        const QString name = ConvertLineweightToName(OdDb::LineWeight(weight)).toQString();
        if (!name.isEmpty() && weight != OdDb::kLineWeightByLayer
            && weight != OdDb::kLineWeightByBlock) {
            names << name;
        }
    }
    return names;
}

/// A setting of a dimension style, then its value.
std::optional<QStringList>
askSetting(QWidget *parent, const QString &title, const CKvRecordRow &row)
{
    const OdDbDimStyleTableRecordPtr style(row.id.openObject());
    QStringList items;
    for (const CKvDimSetting &setting : CKvDimSettings()) {
        items << QStringLiteral("%1 = %2").arg(QLatin1String(setting.name),
                                               setting.text(*style).toQString());
    }
    bool isGiven = false;
    const QString item = QInputDialog::getItem(
        parent, title, CKvRecordsPanel::tr("Setting:"), items, 0, false, &isGiven);
    const int at = int(items.indexOf(item));
    if (!isGiven || at < 0) {
        return std::nullopt;
    }
    const CKvDimSetting &setting = *(begin(CKvDimSettings()) + at);
    const Answer value = askText(
        parent,
        title,
        CKvRecordsPanel::tr("New value of %1, or . for none:").arg(QLatin1String(setting.name)),
        setting.text(*style).toQString());
    return value ? std::optional<QStringList>({ QLatin1String(setting.name), quoted(*value) })
                 : std::nullopt;
}

Answer askValue(QWidget *parent,
                const CKvHostDocument &document,
                const CKvRecordChange &change,
                const CKvRecordRow &row)
{
    using Asks = CKvRecordChange::Asks;
    const OdDbSymbolTableRecordPtr record(row.id.openObject());
    const QString present = change.present ? change.present(*record) : QString();
    const QString title = titleOf(change);
    switch (change.asks) {
    case Asks::Color:
        return askItem(parent,
                       title,
                       CKvRecordsPanel::tr("1 to 255, red to white, or R,G,B:"),
                       colorNames(present),
                       present,
                       Choice::AnyText);
    case Asks::LineStyle:
        return askItem(parent,
                       title,
                       CKvRecordsPanel::tr("Line style of %1:").arg(row.name),
                       lineStyleNames(document),
                       row.details);
    case Asks::LineWeight:
        return askItem(parent,
                       title,
                       CKvRecordsPanel::tr("Lineweight of %1:").arg(row.name),
                       lineWeightNames(),
                       row.size);
    default:
        return askText(
            parent, title, CKvRecordsPanel::tr("%1 of %2:").arg(title, row.name), present);
    }
}

} // namespace

std::optional<QStringList> askRecordChange(QWidget *parent,
                                           const CKvHostDocument &document,
                                           const CKvRecordChange &change,
                                           const CKvRecordRow &row)
{
    using Asks = CKvRecordChange::Asks;
    const QString option = QLatin1String(change.option);
    const QString name = quoted(row.name);
    if (change.asks == Asks::Nothing) {
        return QStringList { option, name };
    }
    if (change.asks == Asks::Flag) {
        const bool wasSet = isSet(change, *OdDbSymbolTableRecordPtr(row.id.openObject()));
        if (change.offOption) {
            return QStringList { wasSet ? QLatin1String(change.offOption) : option, name };
        }
        return QStringList { option, name, wasSet ? QStringLiteral("OFF") : QStringLiteral("ON") };
    }
    if (change.asks == Asks::Setting) {
        const std::optional<QStringList> words = askSetting(parent, titleOf(change), row);
        return words ? std::optional<QStringList>(QStringList { option, name } + *words)
                     : std::nullopt;
    }
    const Answer answer = askValue(parent, document, change, row);
    return answer ? std::optional<QStringList>({ option, name, quoted(*answer) }) : std::nullopt;
}

std::optional<QStringList> askNewLineStyle(QWidget *parent, const CKvHostDocument &document)
{
    const QString title = CKvRecordsPanel::tr("New");
    const QStringList known = lineTypeNames(usualLineStyleFile(document));
    const Answer name = askItem(parent,
                                title,
                                CKvRecordsPanel::tr("A line style to load, or another name:"),
                                known,
                                QString(),
                                Choice::AnyText);
    if (!name) {
        return std::nullopt;
    }
    if (known.contains(*name, Qt::CaseInsensitive)) {
        return QStringList { QStringLiteral("LOAD"), quoted(*name) };
    }
    const Answer pattern = askText(parent,
                                   title,
                                   CKvRecordsPanel::tr("Dashes, gaps (below 0) and dots (0), set "
                                                       "apart by commas:"),
                                   QString());
    return pattern ? std::optional<QStringList>(
               { QStringLiteral("NEW"), quoted(*name), quoted(*pattern), quoted(QString()) })
                   : std::nullopt;
}
