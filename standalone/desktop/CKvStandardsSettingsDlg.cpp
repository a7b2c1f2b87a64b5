// SPDX-License-Identifier: MIT
#include "CKvStandardsSettingsDlg.h"

#include "CKvHostDocument.h"
#include "CKvQtDialogButtonBox.h"
#include "CKvSession.h"
#include "CKvStdsManager.h"
#include "filterOfDrawings.h"
#include "standardsFileState.h"
#include "standardsList.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

constexpr int kHelpTopic = 3071;
constexpr int kPathRole = Qt::UserRole;
constexpr std::int16_t kNotifies = 2;

QStringList listedFiles(const OdDbDatabase &database)
{
    QStringList files;
    for (const CKvString &path : readStandardsList(database, ForeignListEntry::PassOver)) {
        files << path.toQString();
    }
    return files;
}

CKvStdsPluginList plugins()
{
    CKvStdsPluginList list;
    if (CKvStdsManager *manager = GetKvStandardManager()) {
        manager->plugins(list);
    }
    return list;
}

QPushButton *makeButton(const QString &text, const char *name)
{
    auto *button = new QPushButton(text);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

} // namespace

CKvStandardsSettingsDlg::CKvStandardsSettingsDlg(CKvSession &session,
                                                 CKvHostDocument &document,
                                                 int page,
                                                 QWidget *parent)
    : CKvDialog(
        parent, true, Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
    , m_session(session)
    , m_document(document)
    , m_filesBefore(listedFiles(*document.GetKvDatabase()))
    , m_pages(new QTabWidget(this))
{
    setObjectName(QStringLiteral("CKvStandardsSettingsDlg"));
    setWindowTitle(tr("Drawing Standards - %1").arg(document.title()));
    m_pages->setObjectName(QStringLiteral("Pages"));
    m_pages->addTab(makeFilesPage(), tr("&Files"));
    m_pages->addTab(makeCategoriesPage(), tr("&Categories"));
    m_pages->addTab(makeSettingsPage(), tr("&Settings"));
    m_pages->setCurrentIndex(std::clamp(page, 1, 3) - 1);
    auto *buttons = new CKvQtDialogButtonBox(this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    buttons->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                | QDialogButtonBox::Help);
    connect(buttons, &QDialogButtonBox::accepted, this, &CKvStandardsSettingsDlg::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CKvStandardsSettingsDlg::reject);
    connect(buttons, &QDialogButtonBox::helpRequested, this, &CKvDialog::Help);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_pages);
    column->addWidget(buttons);
    for (const QString &file : m_filesBefore) {
        addFile(file);
    }
    m_files->setCurrentItem(m_files->topLevelItem(0));
    updateButtons();
    resize(640, 400);
}

int CKvStandardsSettingsDlg::helpContextId() const
{
    return kHelpTopic;
}

QWidget *CKvStandardsSettingsDlg::makeFilesPage()
{
    auto *page = new QWidget;
    m_files = new QTreeWidget;
    m_files->setObjectName(QStringLiteral("StandardsFiles"));
    m_files->setAccessibleName(tr("Standards files of the drawing"));
    m_files->setHeaderLabels({ tr("File"), tr("State"), tr("Folder") });
    m_files->setRootIsDecorated(false);
    m_files->setUniformRowHeights(true);
    m_files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    auto *add = makeButton(tr("&Add…"), "AddFileButton");
    m_remove = makeButton(tr("&Remove"), "RemoveFileButton");
    m_up = makeButton(tr("Move &Up"), "MoveUpButton");
    m_down = makeButton(tr("Move &Down"), "MoveDownButton");
    connect(add, &QPushButton::clicked, this, &CKvStandardsSettingsDlg::chooseFiles);
    connect(m_remove, &QPushButton::clicked, this, &CKvStandardsSettingsDlg::removeFile);
    connect(m_up, &QPushButton::clicked, this, [this] { moveFile(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { moveFile(1); });
    connect(
        m_files, &QTreeWidget::currentItemChanged, this, &CKvStandardsSettingsDlg::updateButtons);
    auto *buttons = new QVBoxLayout;
    for (QPushButton *button : { add, m_remove, m_up, m_down }) {
        buttons->addWidget(button);
    }
    buttons->addStretch();
    auto *row = new QHBoxLayout;
    row->addWidget(m_files, 1);
    row->addLayout(buttons);
    auto *label = new QLabel(tr(
        "The drawing is checked against these files. The first that has a name decides about it."));
    label->setWordWrap(true);
    auto *column = new QVBoxLayout(page);
    column->addWidget(label);
    column->addLayout(row, 1);
    return page;
}

QWidget *CKvStandardsSettingsDlg::makeCategoriesPage()
{
    auto *page = new QWidget;
    m_categories = new QListWidget;
    m_categories->setObjectName(QStringLiteral("Categories"));
    m_categories->setAccessibleName(tr("Categories that are checked"));
    for (const CKvStdsPluginsPtr &plugin : plugins()) {
        auto *item = new QListWidgetItem(plugin->pluginName().toQString(), m_categories);
        item->setData(kPathRole, plugin->pluginId().toQString());
        item->setToolTip(plugin->description().toQString());
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(plugin->isEnabled() ? Qt::Checked : Qt::Unchecked);
    }
    auto *label =
        new QLabel(m_categories->count() > 0 ? tr("What a verification checks:")
                                             : tr("The module with the checks is not loaded."));
    label->setBuddy(m_categories);
    auto *column = new QVBoxLayout(page);
    column->addWidget(label);
    column->addWidget(m_categories, 1);
    return page;
}

QWidget *CKvStandardsSettingsDlg::makeSettingsPage()
{
    auto *page = new QWidget;
    const CKvStoredSettings &settings = m_session.settings();
    m_preferred = new QComboBox;
    m_preferred->setObjectName(QStringLiteral("PreferredFile"));
    m_preferred->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_fixAutomatically = new QCheckBox(tr("Repair &automatically"));
    m_fixAutomatically->setObjectName(QStringLiteral("FixAutomatically"));
    m_fixAutomatically->setChecked(settings.fixAutomatically());
    m_showIgnored = new QCheckBox(tr("Show &ignored violations"));
    m_showIgnored->setObjectName(QStringLiteral("ShowIgnored"));
    m_showIgnored->setChecked(settings.showIgnored());
    m_notify = new QCheckBox(tr("&Tell when an edit breaks a standard"));
    m_notify->setObjectName(QStringLiteral("Notify"));
    m_notify->setChecked(settings.standardsViolation() != 0);
    auto *form = new QFormLayout;
    form->addRow(tr("&Preferred standards file:"), m_preferred);
    auto *column = new QVBoxLayout(page);
    column->addLayout(form);
    column->addWidget(m_fixAutomatically);
    column->addWidget(m_showIgnored);
    column->addWidget(m_notify);
    column->addStretch();
    updatePreferredFiles();
    return page;
}

QStringList CKvStandardsSettingsDlg::files() const
{
    QStringList files;
    for (int i = 0; i < m_files->topLevelItemCount(); ++i) {
        files << m_files->topLevelItem(i)->data(0, kPathRole).toString();
    }
    return files;
}

void CKvStandardsSettingsDlg::addFile(const QString &path)
{
    if (files().contains(path)) {
        return;
    }
    auto *item = new QTreeWidgetItem(m_files);
    item->setData(0, kPathRole, path);
    describe(*item);
    m_files->setCurrentItem(item);
    updatePreferredFiles();
    updateButtons();
}

void CKvStandardsSettingsDlg::describe(QTreeWidgetItem &item) const
{
    const QString path = item.data(0, kPathRole).toString();
    const CKvStandardsFileState state =
        standardsFileState(path, *m_document.GetKvDatabase(), m_session);
    const QFileInfo shown(state.foundPath.isEmpty() ? QDir::fromNativeSeparators(path)
                                                    : state.foundPath);
    item.setText(0, shown.fileName());
    item.setText(1, state.text);
    item.setText(2, QDir::toNativeSeparators(shown.path()));
    item.setIcon(1,
                 style()->standardIcon(state.isUsable() ? QStyle::SP_DialogApplyButton
                                                        : QStyle::SP_MessageBoxWarning));
    item.setToolTip(0, QDir::toNativeSeparators(path));
    item.setToolTip(1, state.reason.isEmpty() ? state.text : state.reason);
    if (!state.isUsable()) {
        QFont font = item.font(1);
        font.setBold(true);
        item.setFont(1, font);
    }
}

void CKvStandardsSettingsDlg::updateButtons()
{
    const int at = m_files->indexOfTopLevelItem(m_files->currentItem());
    m_remove->setEnabled(at >= 0);
    m_up->setEnabled(at > 0);
    m_down->setEnabled(at >= 0 && at + 1 < m_files->topLevelItemCount());
}

void CKvStandardsSettingsDlg::updatePreferredFiles()
{
    const QString before = m_preferred->count() > 0
        ? m_preferred->currentData().toString()
        : m_session.settings().preferredStandardsFile().toQString();
    m_preferred->clear();
    m_preferred->addItem(tr("None"), QStringLiteral("None"));
    QStringList all = files();
    // One of another drawing stays chosen.
    if (!all.contains(before) && before != QLatin1String("None") && !before.isEmpty()) {
        all << before;
    }
    for (const QString &file : all) {
        m_preferred->addItem(QDir::toNativeSeparators(file), file);
    }
    m_preferred->setCurrentIndex(std::max(m_preferred->findData(before), 0));
}

void CKvStandardsSettingsDlg::chooseFiles()
{
    const QStringList chosen = QFileDialog::getOpenFileNames(
        this, tr("Add Standards Files"), QFileInfo(m_document.path()).path(), filterOfDrawings());
    for (const QString &file : chosen) {
        addFile(file);
    }
}

void CKvStandardsSettingsDlg::removeFile()
{
    delete m_files->currentItem();
    updatePreferredFiles();
    updateButtons();
}

void CKvStandardsSettingsDlg::moveFile(int step)
{
    const int at = m_files->indexOfTopLevelItem(m_files->currentItem());
    QTreeWidgetItem *item = m_files->takeTopLevelItem(at);
    m_files->insertTopLevelItem(at + step, item);
    m_files->setCurrentItem(item);
    updatePreferredFiles();
    updateButtons();
}

void CKvStandardsSettingsDlg::accept()
{
    writeFiles();
    writeCategories();
    writeSettings();
    CKvDialog::accept();
}

void CKvStandardsSettingsDlg::writeFiles()
{
    const QStringList now = files();
    if (now == m_filesBefore) {
        return;
    }
    CKvDatabase &database = *m_document.GetKvDatabase();
    for (const QString &file : m_filesBefore) {
        removeFromStandardsList(database, CKvString(file));
    }
    for (const QString &file : now) {
        appendToStandardsList(database, CKvString(file));
    }
}

void CKvStandardsSettingsDlg::writeCategories()
{
    QStringList disabled;
    for (const CKvStdsPluginsPtr &plugin : plugins()) {
        const QString id = plugin->pluginId().toQString();
        for (int i = 0; i < m_categories->count(); ++i) {
            const QListWidgetItem *item = m_categories->item(i);
            if (item->data(kPathRole).toString() == id) {
                plugin->setEnabled(item->checkState() == Qt::Checked);
            }
        }
        if (!plugin->isEnabled()) {
            disabled << id;
        }
    }
    if (m_categories->count() > 0) {
        m_session.settings().setDisabledCategories(disabled);
    }
}

void CKvStandardsSettingsDlg::writeSettings()
{
    CKvStoredSettings &settings = m_session.settings();
    settings.setPreferredStandardsFile(m_preferred->currentData().toString());
    settings.setFixAutomatically(m_fixAutomatically->isChecked());
    settings.setShowIgnored(m_showIgnored->isChecked());
    // Any value but 0 means the same; one that is there already stays.
    if (m_notify->isChecked() != (settings.standardsViolation() != 0)) {
        settings.setStandardsViolation(m_notify->isChecked() ? kNotifies : 0);
    }
}
