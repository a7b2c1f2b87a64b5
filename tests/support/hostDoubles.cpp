// SPDX-License-Identifier: MIT
#include "hostDoubles.h"

#include "CKvDatabase.h"
#include "CKvDialog.h"
#include "CKvDocument.h"
#include "CKvDrawingStore.h"
#include "CKvMessageBox.h"
#include "CKvQtDialogButtonBox.h"
#include "CKvStdsManager.h"

#include <QKeyEvent>

#include <utility>

namespace
{

CKvDocument *s_activeDocument = nullptr;
CKvStdsManager *s_manager = nullptr;

std::vector<int> &helpTopics()
{
    static std::vector<int> s_topics;
    return s_topics;
}

} // namespace

CKvDocument *setActiveDocument(CKvDocument *document)
{
    return std::exchange(s_activeDocument, document);
}

std::vector<int> takeHelpTopics()
{
    return std::exchange(helpTopics(), {});
}

CKvDocument *ACTIVE_DOCUMENT()
{
    return s_activeDocument;
}

CKvStdsManager *GetKvStandardManager()
{
    return s_manager;
}

void SetKvStandardManager(CKvStdsManager *manager)
{
    s_manager = manager;
}

CKvDatabase::CKvDatabase(std::unique_ptr<CKvDrawingStore> store)
    : OdDbDatabase(std::move(store))
{
}

CKvDatabase::~CKvDatabase() = default;

OdRxClass *CKvDatabase::desc()
{
    static OdRxClass s_class(
        OdString("CKvDatabase"), OdDbDatabase::desc(), nullptr, OdString::kEmpty);
    return &s_class;
}

OdRxClass *CKvDatabase::isA() const
{
    return desc();
}

OdResBufPtr CKvDatabase::getSysVar(const OdString &name) const
{
    return OdDbDatabase::getSysVar(name);
}

CKvString CKvDatabase::drawingFileName() const
{
    return CKvString(getFilename());
}

CKvDialog::CKvDialog(QWidget *parent, bool hasHelp, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_hasHelp(hasHelp)
{
}

CKvDialog::~CKvDialog() = default;

int CKvDialog::helpContextId() const
{
    return 0;
}

void CKvDialog::Help()
{
    helpTopics().push_back(helpContextId());
}

void CKvDialog::keyPressEvent(QKeyEvent *event)
{
    if (m_hasHelp && event->key() == Qt::Key_F1) {
        Help();
        return;
    }
    QDialog::keyPressEvent(event);
}

QMessageBox::StandardButton CKvMessageBox::warning(QWidget *parent,
                                                   const QString &caption,
                                                   const QString &text,
                                                   QMessageBox::StandardButtons buttons,
                                                   QMessageBox::StandardButton defaultButton)
{
    return QMessageBox::warning(parent, caption, text, buttons, defaultButton);
}

CKvQtDialogButtonBox::CKvQtDialogButtonBox(QWidget *parent)
    : QDialogButtonBox(parent)
{
}

CKvQtDialogButtonBox::~CKvQtDialogButtonBox() = default;
