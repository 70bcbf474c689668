// Where documents come from.
#include "zkeditor/modelsBrowser.h"

#include "zkcore/model/documentImpl.h"
#include "zkeditor/hintTreeView.h"
#include "zkeditor/modelsModel.h"
#include "zkeditor/settingsService.h"
#include "zkeditor/widgets/plusMinusButton.h"
#include "zkeditor/widgets/resourceIcon.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QVBoxLayout>

ModelsBrowser::ModelsBrowser(QWidget* parent)
    : QWidget(parent), m_model(new ModelsModel(this)), m_view(new HintTreeView),
      m_add(new QAction(tr("&Add Folder..."), this)), m_remove(new QAction(tr("&Remove Folder"), this)),
      m_open(new QAction(tr("&Open"), this))
{
    m_add->setIcon(resourceIcon(QStringLiteral("editor/models/folder-add"), 20, this));
    m_add->setToolTip(tr("Show the documents of one more folder"));
    m_remove->setIcon(resourceIcon(QStringLiteral("editor/models/folder-remove"), 20, this));
    m_remove->setToolTip(tr("Show the folder no longer; nothing on the disk is touched"));
    m_remove->setShortcut(QKeySequence::Delete);
    m_remove->setShortcutContext(Qt::WidgetShortcut);
    connect(m_add, &QAction::triggered, this, &ModelsBrowser::askForFolder);
    connect(m_remove, &QAction::triggered, this, &ModelsBrowser::removeCurrentFolder);
    connect(m_open, &QAction::triggered, this, [this] { onRowChosen(m_view->currentIndex()); });

    m_view->setModel(m_model);
    m_view->setAccessibleName(tr("Models"));
    m_view->setUniformRowHeights(false);
    m_view->setIconSize(ModelsModel::pictureSize);
    m_view->setWordWrap(true);
    m_view->setIndentation(14);
    m_view->setHint(tr("No folder yet. Add one to see its documents here."));
    m_view->addAction(m_remove);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &HintTreeView::rowChosen, this, &ModelsBrowser::onRowChosen);
    connect(m_view, &QWidget::customContextMenuRequested, this, &ModelsBrowser::showMenu);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &ModelsBrowser::updateActions);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &ModelsBrowser::updateActions);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex& folder, int first) {
        if (!folder.isValid())
            m_view->expand(m_model->index(first, 0));
    });

    auto* buttons = new QHBoxLayout;
    auto* plusMinus = new PlusMinusButton(this);
    plusMinus->setActions(m_add, m_remove);
    buttons->addWidget(plusMinus);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addLayout(buttons);
    layout->addWidget(m_view, 1);

    readFolders();
    updateActions();
}

ModelsBrowser::~ModelsBrowser() = default;

void ModelsBrowser::setDocument(DocumentImpl* document)
{
    if (m_document)
        m_document->disconnect(this);
    m_document = document;
    if (document) {
        connect(document, &DocumentImpl::Loaded, this, &ModelsBrowser::onOpenDocumentChanged);
        connect(document, &DocumentImpl::saved, this, &ModelsBrowser::onOpenDocumentChanged);
    }
    onOpenDocumentChanged();
}

void ModelsBrowser::onOpenDocumentChanged()
{
    m_model->setOpenDocument(m_document ? m_document->getUrl().toLocalFile() : QString());
}

void ModelsBrowser::addFolder(const QString& path)
{
    if (path.isEmpty() || !m_model->addFolder(path))
        return;
    if (SettingsService::exists())
        SettingsService::instance()->addModelsBrowserDirectory(m_model->folders().constLast());
}

void ModelsBrowser::removeFolder(const QString& path)
{
    if (m_model->removeFolder(path) && SettingsService::exists())
        SettingsService::instance()->removeModelsBrowserDirectory(path);
}

QStringList ModelsBrowser::folders() const
{
    return m_model->folders();
}

void ModelsBrowser::askForFolder()
{
    const QStringList known = folders();
    addFolder(QFileDialog::getExistingDirectory(this, tr("Add Folder"),
                                                known.isEmpty() ? QDir::homePath() : known.constLast()));
}

void ModelsBrowser::removeCurrentFolder()
{
    QModelIndex current = m_view->currentIndex();
    if (current.parent().isValid())
        current = current.parent();
    if (current.isValid())
        removeFolder(m_model->path(current));
}

void ModelsBrowser::onRowChosen(const QModelIndex& index)
{
    if (index.isValid() && !m_model->isFolder(index))
        Q_EMIT documentChosen(m_model->path(index));
}

void ModelsBrowser::updateActions()
{
    const QModelIndex current = m_view->currentIndex();
    m_remove->setEnabled(current.isValid());
    m_open->setEnabled(current.isValid() && !m_model->isFolder(current));
}

void ModelsBrowser::showMenu(const QPoint& place)
{
    QMenu menu(this);
    menu.addActions({m_open, m_add, m_remove});
    menu.exec(m_view->viewport()->mapToGlobal(place));
}

void ModelsBrowser::readFolders()
{
    // A host may make its window before the service, which wants to know the window.
    if (m_foldersRead || !SettingsService::exists())
        return;
    m_foldersRead = true;
    for (const QString& folder : SettingsService::instance()->getModelsBrowserDirectories())
        m_model->addFolder(folder);
}

void ModelsBrowser::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    readFolders();
    m_model->refresh(); // a folder that was not there cannot be watched
}
