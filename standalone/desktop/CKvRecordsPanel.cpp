// SPDX-License-Identifier: MIT
#include "CKvRecordsPanel.h"

#include "CKvHostDocument.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTableRecord.h"
#include "aciColor.h"
#include "pictureRecords.h"
#include "takeWord.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QPixmap>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace
{

constexpr int kKindRole = Qt::UserRole;
constexpr int kNameRole = Qt::UserRole + 1;
constexpr int kIsOffRole = Qt::UserRole + 2;
constexpr int kSwatch = 12;

QIcon swatch(const OdCmColor &color)
{
    QPixmap pixmap(kSwatch, kSwatch);
    pixmap.fill(color.isByColor() ? QColor(color.red(), color.green(), color.blue())
                                  : QColor(aciColor(color.colorIndex())));
    return QIcon(pixmap);
}

QPushButton *makeButton(const QString &text, const char *name)
{
    auto *button = new QPushButton(text);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

/// The command that changes records of a kind.
QString commandOf(CKvRecordKind kind)
{
    switch (kind) {
    case CKvRecordKind::Layer:
        return QStringLiteral("LAYER");
    case CKvRecordKind::LineStyle:
        return QStringLiteral("LINETYPE");
    case CKvRecordKind::TextStyle:
        return QStringLiteral("STYLE");
    case CKvRecordKind::DimStyle:
    case CKvRecordKind::Block:
        break;
    }
    return QStringLiteral("DIMSTYLE");
}

/// What RENAME calls the kind.
QString wordOf(CKvRecordKind kind)
{
    return kind == CKvRecordKind::LineStyle ? QStringLiteral("LTYPE") : commandOf(kind);
}

} // namespace

CKvRecordsPanel::CKvRecordsPanel(QWidget *parent)
    : QWidget(parent)
    , m_list(new QTreeWidget(this))
    , m_add(makeButton(tr("New…"), "AddRecordButton"))
    , m_rename(makeButton(tr("Rename…"), "RenameRecordButton"))
    , m_color(makeButton(tr("Colour…"), "ColorRecordButton"))
    , m_switch(makeButton(tr("On/Off"), "SwitchRecordButton"))
    , m_delete(makeButton(tr("Delete"), "DeleteRecordButton"))
{
    m_list->setObjectName(QStringLiteral("Records"));
    m_list->setAccessibleName(tr("Layers and styles of the drawing"));
    m_list->setHeaderLabels({ tr("Name"), tr("Line style"), tr("Weight") });
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    auto *buttons = new QGridLayout;
    int place = 0;
    for (QPushButton *button : { m_add, m_rename, m_delete, m_color, m_switch }) {
        buttons->addWidget(button, place / 3, place % 3);
        ++place;
    }
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(m_list, 1);
    column->addLayout(buttons);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &CKvRecordsPanel::refresh);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &CKvRecordsPanel::updateButtons);
    connect(m_add, &QPushButton::clicked, this, &CKvRecordsPanel::addRecord);
    connect(m_rename, &QPushButton::clicked, this, &CKvRecordsPanel::renameRecord);
    connect(m_color, &QPushButton::clicked, this, &CKvRecordsPanel::changeColor);
    connect(m_switch, &QPushButton::clicked, this, &CKvRecordsPanel::switchLayer);
    connect(m_delete, &QPushButton::clicked, this, &CKvRecordsPanel::deleteRecord);
    updateButtons();
}

CKvRecordsPanel::~CKvRecordsPanel() = default;

void CKvRecordsPanel::setDocument(CKvHostDocument *document)
{
    m_document = document;
    refresh();
}

void CKvRecordsPanel::refreshLater()
{
    m_timer.start(0);
}

QTreeWidgetItem *CKvRecordsPanel::addGroup(const QString &title, CKvRecordKind kind)
{
    auto *group = new QTreeWidgetItem(m_list, { title });
    group->setData(0, kKindRole, int(kind));
    QFont font = group->font(0);
    font.setBold(true);
    group->setFont(0, font);
    group->setFirstColumnSpanned(true);
    return group;
}

void CKvRecordsPanel::refresh()
{
    const QString name = chosenName();
    const CKvRecordKind kind = chosenKind();
    m_list->clear();
    if (m_document) {
        addLayers(*addGroup(tr("Layers"), CKvRecordKind::Layer));
        addStyles(*addGroup(tr("Line styles"), CKvRecordKind::LineStyle), CKvRecordKind::LineStyle);
        addStyles(*addGroup(tr("Text styles"), CKvRecordKind::TextStyle), CKvRecordKind::TextStyle);
        addStyles(*addGroup(tr("Dimension styles"), CKvRecordKind::DimStyle),
                  CKvRecordKind::DimStyle);
        m_list->topLevelItem(0)->setExpanded(true);
    }
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *group = m_list->topLevelItem(i);
        for (int row = 0; row < group->childCount(); ++row) {
            QTreeWidgetItem *item = group->child(row);
            if (item->data(0, kKindRole).toInt() == int(kind)
                && quoted(item->data(0, kNameRole).toString()) == name) {
                m_list->setCurrentItem(item);
            }
        }
    }
    updateButtons();
}

void CKvRecordsPanel::addLayers(QTreeWidgetItem &group)
{
    const OdDbSymbolTablePtr table = openTable(*m_document, CKvRecordKind::Layer);
    for (OdDbSymbolTableIteratorPtr walk = table->newIterator(); !walk->done(); walk->step()) {
        const OdDbLayerTableRecordPtr layer(walk->getRecord());
        const CKvPictureLayer state = layerRecord(*walk->getRecordId().slot());
        const QString name = layer->getName().toQString();
        const OdDbLinetypeTableRecordPtr style(layer->linetypeObjectId().openObject());
        auto *item = new QTreeWidgetItem(&group);
        item->setText(0, state.isVisible() ? name : tr("%1 (off)").arg(name));
        item->setIcon(0, swatch(layer->color()));
        item->setText(1, style ? style->getName().toQString() : QString());
        const int weight = layer->lineWeight();
        item->setText(2, weight >= 0 ? QString::number(weight / 100.0, 'f', 2) : tr("Default"));
        item->setToolTip(0, layer->color().colorNameForDisplay().toQString());
        item->setData(0, kKindRole, int(CKvRecordKind::Layer));
        item->setData(0, kNameRole, name);
        item->setData(0, kIsOffRole, state.isOff);
    }
}

void CKvRecordsPanel::addStyles(QTreeWidgetItem &group, CKvRecordKind kind)
{
    const OdDbSymbolTablePtr table = openTable(*m_document, kind);
    for (OdDbSymbolTableIteratorPtr walk = table->newIterator(); !walk->done(); walk->step()) {
        const QString name = walk->getRecord()->getName().toQString();
        auto *item = new QTreeWidgetItem(&group, { name });
        item->setData(0, kKindRole, int(kind));
        item->setData(0, kNameRole, name);
    }
}

QString CKvRecordsPanel::chosenName() const
{
    const QTreeWidgetItem *item = m_list->currentItem();
    const QString name = item ? item->data(0, kNameRole).toString() : QString();
    return name.isEmpty() ? QString() : quoted(name);
}

CKvRecordKind CKvRecordsPanel::chosenKind() const
{
    const QTreeWidgetItem *item = m_list->currentItem();
    return item ? CKvRecordKind(item->data(0, kKindRole).toInt()) : CKvRecordKind::Layer;
}

void CKvRecordsPanel::updateButtons()
{
    const bool isChosen = !chosenName().isEmpty();
    const bool isLayer = isChosen && chosenKind() == CKvRecordKind::Layer;
    m_add->setEnabled(m_document != nullptr);
    m_rename->setEnabled(isChosen);
    m_delete->setEnabled(isChosen);
    m_color->setEnabled(isLayer);
    m_switch->setEnabled(isLayer);
}

void CKvRecordsPanel::want(const QStringList &words)
{
    emit commandWanted(words.join(QLatin1Char(' ')));
}

void CKvRecordsPanel::addRecord()
{
    const QString name = QInputDialog::getText(this, tr("New"), tr("Name:"));
    if (!name.isEmpty()) {
        const bool isLineStyle = chosenKind() == CKvRecordKind::LineStyle;
        want({ commandOf(chosenKind()),
               isLineStyle ? QStringLiteral("LOAD") : QStringLiteral("NEW"),
               quoted(name) });
    }
}

void CKvRecordsPanel::renameRecord()
{
    const QString old = chosenName();
    const QString name = QInputDialog::getText(
        this, tr("Rename"), tr("New name:"), QLineEdit::Normal, unquoted(old));
    if (!name.isEmpty() && quoted(name) != old) {
        want({ QStringLiteral("RENAME"), wordOf(chosenKind()), old, quoted(name) });
    }
}

void CKvRecordsPanel::deleteRecord()
{
    want({ commandOf(chosenKind()), QStringLiteral("DELETE"), chosenName() });
}

void CKvRecordsPanel::changeColor()
{
    const QString color =
        QInputDialog::getText(this, tr("Colour"), tr("1 to 255, red to white, or R,G,B:"));
    if (!color.isEmpty()) {
        want({ QStringLiteral("LAYER"), QStringLiteral("COLOR"), chosenName(), quoted(color) });
    }
}

void CKvRecordsPanel::switchLayer()
{
    const bool isOff = m_list->currentItem()->data(0, kIsOffRole).toBool();
    want({ QStringLiteral("LAYER"),
           isOff ? QStringLiteral("ON") : QStringLiteral("OFF"),
           chosenName() });
}
