// SPDX-License-Identifier: MIT
#pragma once

#include "recordTables.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class CKvHostDocument;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// Lists the layers and styles of the active drawing. Its buttons run commands, so the reactors see
/// each change, and undo takes it back.
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

private:
    void refresh();
    QTreeWidgetItem *addGroup(const QString &title, CKvRecordKind kind);
    void addLayers(QTreeWidgetItem &group);
    void addStyles(QTreeWidgetItem &group, CKvRecordKind kind);
    void updateButtons();
    void addRecord();
    void renameRecord();
    void deleteRecord();
    void changeColor();
    void switchLayer();
    /// The chosen record's name in quotes; empty when none is chosen.
    QString chosenName() const;
    CKvRecordKind chosenKind() const;
    void want(const QStringList &words);

    CKvHostDocument *m_document = nullptr;
    QTreeWidget *m_list;
    QPushButton *m_add;
    QPushButton *m_rename;
    QPushButton *m_color;
    QPushButton *m_switch;
    QPushButton *m_delete;
    QTimer m_timer;
};
