// SPDX-License-Identifier: MIT
#include "CKvRecordsPanel.h"

#include "CKvHostDocument.h"
#include "askRecordChange.h"
#include "recordChanges.h"
#include "recordIcons.h"
#include "takeWord.h"

#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace
{

enum Column { kNameColumn, kOnColumn, kFrozenColumn, kLockedColumn, kDetailsColumn, kSizeColumn };
constexpr int kKindRole = Qt::UserRole;
/// Index of the row; -1 for the title of a kind.
constexpr int kRowRole = Qt::UserRole + 1;
constexpr CKvRecordKind kKinds[] = { CKvRecordKind::Layer,
                                     CKvRecordKind::LineStyle,
                                     CKvRecordKind::TextStyle,
                                     CKvRecordKind::DimStyle };

/// The command that changes records of a kind; line styles alone have another word in RENAME.
QString commandOf(CKvRecordKind kind)
{
    return kind == CKvRecordKind::LineStyle ? QStringLiteral("LINETYPE") : wordOfRecordKind(kind);
}

/// With a place for the number of records.
QString titleOf(CKvRecordKind kind)
{
    switch (kind) {
    case CKvRecordKind::Layer:
        return CKvRecordsPanel::tr("Layers (%1)");
    case CKvRecordKind::LineStyle:
        return CKvRecordsPanel::tr("Line styles (%1)");
    case CKvRecordKind::TextStyle:
        return CKvRecordsPanel::tr("Text styles (%1)");
    case CKvRecordKind::DimStyle:
    case CKvRecordKind::Block:
        break;
    }
    return CKvRecordsPanel::tr("Dimension styles (%1)");
}

} // namespace

CKvRecordsPanel::CKvRecordsPanel(QWidget *parent)
    : QWidget(parent)
    , m_list(new QTreeWidget(this))
    , m_add(new QPushButton(tr("New…"), this))
    , m_rename(new QPushButton(tr("Rename…"), this))
    , m_delete(new QPushButton(tr("Delete"), this))
    , m_change(new QPushButton(tr("Change"), this))
    , m_changeMenu(new QMenu(this))
{
    makeList();
    makeButtons();
    auto *buttons = new QGridLayout;
    int column = 0;
    for (QPushButton *button : { m_add, m_rename, m_delete, m_change }) {
        buttons->addWidget(button, 0, column++);
    }
    auto *stack = new QVBoxLayout(this);
    stack->setContentsMargins(4, 4, 4, 4);
    stack->addWidget(m_list, 1);
    stack->addLayout(buttons);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &CKvRecordsPanel::refresh);
    updateButtons();
}

CKvRecordsPanel::~CKvRecordsPanel() = default;

void CKvRecordsPanel::makeList()
{
    m_list->setObjectName(QStringLiteral("Records"));
    m_list->setAccessibleName(tr("Layers and styles of the drawing"));
    m_list->setHeaderLabels(
        { tr("Name"), tr("On"), tr("Fz"), tr("Lk"), tr("Details"), tr("Size") });
    m_list->headerItem()->setToolTip(kOnColumn, tr("On or off"));
    m_list->headerItem()->setToolTip(kFrozenColumn, tr("Frozen"));
    m_list->headerItem()->setToolTip(kLockedColumn, tr("Locked"));
    m_list->headerItem()->setToolTip(kSizeColumn,
                                     tr("Lineweight, length of the pattern, or height of texts"));
    m_list->setUniformRowHeights(true);
    m_list->setIndentation(12);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setMinimumSectionSize(18);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &CKvRecordsPanel::updateButtons);
    connect(m_list, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem *item, int column) {
        toggleAt(*item, column);
    });
    connect(m_list, &QTreeWidget::customContextMenuRequested, this, [this](QPoint place) {
        if (chosenRow()) {
            m_changeMenu->popup(m_list->viewport()->mapToGlobal(place));
        }
    });
    const auto addKey = [this](Qt::Key key, void (CKvRecordsPanel::*action)()) {
        auto *shortcut = new QShortcut(key, m_list);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    addKey(Qt::Key_F2, &CKvRecordsPanel::renameRecord);
    addKey(Qt::Key_Delete, &CKvRecordsPanel::deleteRecord);
    addKey(Qt::Key_Insert, &CKvRecordsPanel::addRecord);
}

void CKvRecordsPanel::makeButtons()
{
    m_add->setObjectName(QStringLiteral("AddRecordButton"));
    m_rename->setObjectName(QStringLiteral("RenameRecordButton"));
    m_delete->setObjectName(QStringLiteral("DeleteRecordButton"));
    m_change->setObjectName(QStringLiteral("ChangeRecordButton"));
    m_changeMenu->setObjectName(QStringLiteral("ChangeRecordMenu"));
    m_change->setMenu(m_changeMenu);
    connect(m_add, &QPushButton::clicked, this, &CKvRecordsPanel::addRecord);
    connect(m_rename, &QPushButton::clicked, this, &CKvRecordsPanel::renameRecord);
    connect(m_delete, &QPushButton::clicked, this, &CKvRecordsPanel::deleteRecord);
    connect(m_changeMenu, &QMenu::aboutToShow, this, &CKvRecordsPanel::fillChangeMenu);
}

void CKvRecordsPanel::setDocument(CKvHostDocument *document)
{
    m_document = document;
    refresh();
}

void CKvRecordsPanel::refreshLater()
{
    m_timer.start(0);
}

void CKvRecordsPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // The icons have a rim in the colour of the text.
    if (event->type() == QEvent::PaletteChange) {
        showRows(std::vector<CKvRecordRow>(m_rows));
    }
}

void CKvRecordsPanel::refresh()
{
    std::vector<CKvRecordRow> rows =
        m_document ? recordRows(*m_document) : std::vector<CKvRecordRow>();
    // Most commands change no record; the list then keeps its place.
    const bool isSame = m_list->topLevelItemCount() == (m_document ? int(std::size(kKinds)) : 0)
        && std::equal(rows.begin(),
                      rows.end(),
                      m_rows.begin(),
                      m_rows.end(),
                      [](const CKvRecordRow &a, const CKvRecordRow &b) { return a.isSameAs(b); });
    if (!isSame) {
        showRows(std::move(rows));
    }
}

void CKvRecordsPanel::showRows(std::vector<CKvRecordRow> rows)
{
    const bool isAnyChosen = m_list->currentItem() != nullptr;
    const CKvRecordRow *chosen = chosenRow();
    const OdDbObjectId id = chosen ? chosen->id : OdDbObjectId();
    const CKvRecordKind kind = chosenKind();
    m_rows = std::move(rows);
    fill();
    if (isAnyChosen) {
        choose(kind, id);
    }
    updateButtons();
}

void CKvRecordsPanel::choose(CKvRecordKind kind, OdDbObjectId id)
{
    for (QTreeWidgetItemIterator walk(m_list); *walk; ++walk) {
        const int row = (*walk)->data(0, kRowRole).toInt();
        // The title of the kind stands for a record that is gone.
        const bool isTitle = row < 0 && (*walk)->data(0, kKindRole).toInt() == int(kind);
        if (isTitle || (row >= 0 && !id.isNull() && m_rows[std::size_t(row)].id == id)) {
            m_list->setCurrentItem(*walk);
        }
    }
}

void CKvRecordsPanel::fill()
{
    std::array<bool, std::size(kKinds)> isExpanded = { true };
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        isExpanded[std::size_t(i)] = m_list->topLevelItem(i)->isExpanded();
    }
    const int scrolled = m_list->verticalScrollBar()->value();
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    for (std::size_t i = 0; m_document && i < std::size(kKinds); ++i) {
        auto *group = new QTreeWidgetItem(m_list);
        group->setData(0, kKindRole, int(kKinds[i]));
        group->setData(0, kRowRole, -1);
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            if (m_rows[row].kind == kKinds[i]) {
                addRow(*group, row);
            }
        }
        group->setText(0, titleOf(kKinds[i]).arg(group->childCount()));
        group->setFirstColumnSpanned(true);
        group->setExpanded(isExpanded[i]);
    }
    m_list->verticalScrollBar()->setValue(scrolled);
}

void CKvRecordsPanel::addRow(QTreeWidgetItem &group, std::size_t index)
{
    const CKvRecordRow &row = m_rows[index];
    auto *item = new QTreeWidgetItem(&group);
    item->setData(0, kKindRole, int(row.kind));
    item->setData(0, kRowRole, int(index));
    item->setText(kNameColumn, row.name);
    item->setText(kDetailsColumn, row.details);
    item->setText(kSizeColumn, row.size);
    item->setTextAlignment(kSizeColumn, Qt::AlignRight | Qt::AlignVCenter);
    if (row.isCurrent) {
        QFont font = item->font(kNameColumn);
        font.setBold(true);
        item->setFont(kNameColumn, font);
        item->setToolTip(kNameColumn, tr("The current one"));
    }
    if (row.kind == CKvRecordKind::Layer) {
        showState(*item, row);
    }
}

void CKvRecordsPanel::showState(QTreeWidgetItem &item, const CKvRecordRow &row)
{
    const QColor rim = palette().color(QPalette::Disabled, QPalette::Text);
    item.setIcon(kNameColumn, colorSwatch(row.color, palette().color(QPalette::Text)));
    item.setToolTip(kNameColumn,
                    row.isCurrent ? tr("Colour %1, the current layer").arg(row.colorName)
                                  : tr("Colour %1").arg(row.colorName));
    const auto show = [&](Column column, CKvLayerMark mark, bool isOn, const QString &word) {
        item.setIcon(column, layerMark(mark, isOn, rim));
        item.setToolTip(column, word);
        item.setData(column, Qt::AccessibleTextRole, word);
    };
    const CKvLayerState &state = row.state;
    show(kOnColumn, CKvLayerMark::On, !state.isOff, state.isOff ? tr("off") : tr("on"));
    show(kFrozenColumn,
         CKvLayerMark::Frozen,
         state.isFrozen,
         state.isFrozen ? tr("frozen") : tr("not frozen"));
    show(kLockedColumn,
         CKvLayerMark::Locked,
         state.isLocked,
         state.isLocked ? tr("locked") : tr("not locked"));
}

const CKvRecordRow *CKvRecordsPanel::chosenRow() const
{
    const QTreeWidgetItem *item = m_list->currentItem();
    const int row = item ? item->data(0, kRowRole).toInt() : -1;
    return row < 0 ? nullptr : &m_rows[std::size_t(row)];
}

CKvRecordKind CKvRecordsPanel::chosenKind() const
{
    const QTreeWidgetItem *item = m_list->currentItem();
    return item ? CKvRecordKind(item->data(0, kKindRole).toInt()) : CKvRecordKind::Layer;
}

void CKvRecordsPanel::updateButtons()
{
    const bool isChosen = chosenRow() != nullptr;
    m_add->setEnabled(m_document != nullptr);
    m_rename->setEnabled(isChosen);
    m_delete->setEnabled(isChosen);
    m_change->setEnabled(isChosen);
}

void CKvRecordsPanel::fillChangeMenu()
{
    m_changeMenu->clear();
    const CKvRecordRow *row = chosenRow();
    if (!row) {
        return;
    }
    const OdDbSymbolTableRecordPtr record(row->id.openObject());
    for (const CKvRecordChange &one : CKvRecordChanges()) {
        if (one.kind != row->kind) {
            continue;
        }
        QAction *action = m_changeMenu->addAction(tr(one.label));
        action->setObjectName(QString(QLatin1String(one.option) + QLatin1String("Change")));
        if (one.asks == CKvRecordChange::Asks::Flag) {
            action->setCheckable(true);
            action->setChecked(isSet(one, *record));
        }
        connect(action, &QAction::triggered, this, [this, &one] { change(one); });
    }
}

void CKvRecordsPanel::change(const CKvRecordChange &change)
{
    if (!chosenRow()) {
        return;
    }
    // While the dialog is up the list may be filled anew.
    const CKvRecordRow row = *chosenRow();
    const std::optional<QStringList> words = askRecordChange(this, *m_document, change, row);
    if (words) {
        want(commandOf(row.kind), *words);
    }
}

void CKvRecordsPanel::toggleAt(const QTreeWidgetItem &item, int column)
{
    const int index = item.data(0, kRowRole).toInt();
    if (index < 0 || m_rows[std::size_t(index)].kind != CKvRecordKind::Layer) {
        return;
    }
    const CKvRecordRow &row = m_rows[std::size_t(index)];
    const char *option = nullptr;
    if (column == kOnColumn) {
        option = row.state.isOff ? "ON" : "OFF";
    } else if (column == kFrozenColumn) {
        option = row.state.isFrozen ? "THAW" : "FREEZE";
    } else if (column == kLockedColumn) {
        option = row.state.isLocked ? "UNLOCK" : "LOCK";
    }
    if (option) {
        want(commandOf(row.kind), { QLatin1String(option), quoted(row.name) });
    }
}

void CKvRecordsPanel::want(const QString &command, const QStringList &words)
{
    emit commandWanted(QString(command + QLatin1Char(' ') + words.join(QLatin1Char(' '))));
}

void CKvRecordsPanel::addRecord()
{
    if (!m_document) {
        return;
    }
    const CKvRecordKind kind = chosenKind();
    if (kind == CKvRecordKind::LineStyle) {
        const std::optional<QStringList> words = askNewLineStyle(this, *m_document);
        if (words) {
            want(commandOf(kind), *words);
        }
        return;
    }
    const QString name = QInputDialog::getText(this, tr("New"), tr("Name:")).trimmed();
    if (!name.isEmpty()) {
        want(commandOf(kind), { QStringLiteral("NEW"), quoted(name) });
    }
}

void CKvRecordsPanel::renameRecord()
{
    const CKvRecordRow *row = chosenRow();
    if (!row) {
        return;
    }
    const CKvRecordKind kind = row->kind;
    const QString old = row->name;
    const QString name =
        QInputDialog::getText(this, tr("Rename"), tr("New name:"), QLineEdit::Normal, old);
    if (!name.isEmpty() && name != old) {
        want(QStringLiteral("RENAME"), { wordOfRecordKind(kind), quoted(old), quoted(name) });
    }
}

void CKvRecordsPanel::deleteRecord()
{
    if (const CKvRecordRow *row = chosenRow()) {
        want(commandOf(row->kind), { QStringLiteral("DELETE"), quoted(row->name) });
    }
}
