// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDialog.h"

#include <QStringList>

class CKvHostDocument;
class CKvSession;
class QCheckBox;
class QComboBox;
class QListWidget;
class QPushButton;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

/// The standards settings of a drawing: its standards files, the categories that are checked, and
/// how a verification runs. Nothing is changed before OK.
class CKvStandardsSettingsDlg : public CKvDialog
{
    Q_OBJECT

public:
    /// @param page the one in front: 1 files, 2 categories, 3 settings.
    CKvStandardsSettingsDlg(CKvSession &session,
                            CKvHostDocument &document,
                            int page,
                            QWidget *parent = nullptr);

    int helpContextId() const override;
    /// The files as they stand in the list.
    QStringList files() const;
    /// Puts a file behind the others; one that is listed stays where it is.
    void addFile(const QString &path);

public slots:
    void accept() override;

private:
    QWidget *makeFilesPage();
    QWidget *makeCategoriesPage();
    QWidget *makeSettingsPage();
    void chooseFiles();
    void removeFile();
    void moveFile(int step);
    void describe(QTreeWidgetItem &item) const;
    void updateButtons();
    void updatePreferredFiles();
    void writeFiles();
    void writeCategories();
    void writeSettings();

    CKvSession &m_session;
    CKvHostDocument &m_document;
    QStringList m_filesBefore;
    QTabWidget *m_pages;
    QTreeWidget *m_files = nullptr;
    QPushButton *m_remove = nullptr;
    QPushButton *m_up = nullptr;
    QPushButton *m_down = nullptr;
    QListWidget *m_categories = nullptr;
    QComboBox *m_preferred = nullptr;
    QCheckBox *m_fixAutomatically = nullptr;
    QCheckBox *m_showIgnored = nullptr;
    QCheckBox *m_notify = nullptr;
};
