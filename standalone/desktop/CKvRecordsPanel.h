// SPDX-License-Identifier: MIT
#pragma once

#include "recordRows.h"

#include <QTimer>
#include <QWidget>

#include <vector>

class CKvHostDocument;
class QMenu;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
struct CKvRecordChange;

/// Lists the layers and styles of the active drawing. Its buttons and menus run commands, so the
/// reactors see each change, and undo takes it back.
class CKvRecordsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CKvRecordsPanel(QWidget *parent = nullptr);
    ~CKvRecordsPanel() override;

    /// @param document null for none; must outlive the panel or be taken away.
    void setDocument(CKvHostDocument *document);
    /// Fills the list once the running event is done.
    void refreshLater();

signals:
    /// A command that the user has asked for.
    void commandWanted(const QString &line);

protected:
    void changeEvent(QEvent *event) override;

private:
    void makeList();
    void makeButtons();
    void refresh();
    /// Fills the list; what was chosen stays so.
    void showRows(std::vector<CKvRecordRow> rows);
    void fill();
    void choose(CKvRecordKind kind, OdDbObjectId id);
    /// @param index of the row.
    void addRow(QTreeWidgetItem &group, std::size_t index);
    void showState(QTreeWidgetItem &item, const CKvRecordRow &row);
    void updateButtons();
    void fillChangeMenu();
    void change(const CKvRecordChange &change);
    void toggleAt(const QTreeWidgetItem &item, int column);
    void addRecord();
    void renameRecord();
    void deleteRecord();
    /// Null when the title of a kind, or nothing, is chosen.
    const CKvRecordRow *chosenRow() const;
    CKvRecordKind chosenKind() const;
    void want(const QString &command, const QStringList &words);

    CKvHostDocument *m_document = nullptr;
    /// What the list shows.
    std::vector<CKvRecordRow> m_rows;
    QTreeWidget *m_list;
    QPushButton *m_add;
    QPushButton *m_rename;
    QPushButton *m_delete;
    QPushButton *m_change;
    QMenu *m_changeMenu;
    QTimer m_timer;
};
