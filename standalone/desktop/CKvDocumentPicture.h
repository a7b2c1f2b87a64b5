// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDatabaseReactor.h"
#include "CKvPictureBuilder.h"
#include "OdStaticRxObject.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

class CKvDatabase;

/// The picture of an open drawing, kept up to date: made in slices between other events, then
/// changed where the drawing changes. While a new one is made the old one stays.
class CKvDocumentPicture : public QObject
{
    Q_OBJECT

public:
    /// @param database must outlive the picture.
    explicit CKvDocumentPicture(CKvDatabase &database);
    ~CKvDocumentPicture() override;

    /// The last complete one; null before the first.
    const CKvPicture *picture() const;
    bool isBuilding() const { return m_building != nullptr; }
    /// Makes the picture anew.
    void rebuild();
    /// Gives up the one that is being made.
    void cancel();
    /// Works until everything is up to date.
    void finish();

signals:
    /// @param part 0 to 1 while a picture is made.
    void progressed(double part);
    void completed();
    /// What stands in the picture has changed.
    void changed();

private:
    class Watch;

    void work();
    void noteChange(const OdDbObject &object);
    void applyChanges();

    CKvDatabase &m_database;
    std::unique_ptr<Watch> m_watch;
    std::unique_ptr<CKvPictureBuilder> m_complete;
    std::unique_ptr<CKvPictureBuilder> m_building;
    QTimer m_timer;
    std::vector<CKvObjectSlot *> m_changedEntities;
    bool m_haveLayersChanged = false;
    bool m_mustRebuild = false;
};
