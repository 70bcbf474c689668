#include "zkeditor/widgets/resourceListBox.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resourceTable.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/editDelegate.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/resourceImport.h"
#include "zkeditor/widgets/resourceModel.h"
#include "zkeditor/widgets/resourceRename.h"
#include "zkeditor/widgets/rowDrag.h"
#include "zkeditor/widgets/undoGroup.h"

#include <QAction>
#include <QEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <tuple>

namespace {

constexpr QSize listPreview(160, 96);

} // namespace

ResourceListBox::ResourceListBox(QWidget* parent, const QString& name)
    : ListEditor(parent, name), PropertyObserver(this, Value::RESOURCEVECTOR), m_model(new ResourceModel(this)),
      m_preview(new QLabel(this))
{
    view()->setModel(m_model);
    view()->header()->hide();
    view()->setIconSize(QSize(24, 24));
    view()->setDragDropMode(QAbstractItemView::DragDrop);
    view()->setDragDropOverwriteMode(false);
    view()->setDefaultDropAction(Qt::MoveAction);
    std::tie(m_add, m_remove) = addPlusMinus(
        tr("Add files"), [this] { addFiles(); }, tr("Remove"), [this] { removeSelected(); });
    addMoveButtons([this](int by) { moveSelected(by); });
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setFixedHeight(listPreview.height());
    m_preview->setMinimumWidth(1);
    static_cast<QVBoxLayout*>(layout())->insertWidget(1, m_preview);
    m_preview->hide();
    editDelegate()->setCheck(
        [this](const QModelIndex& index, const QString& text) { return refusalOf(index.row(), text); });
    connect(m_model, &ResourceModel::renameAsked, this, &ResourceListBox::rename);
    connect(m_model, &ResourceModel::moveAsked, this, &ResourceListBox::moveRows);
    connect(m_model, &ResourceModel::filesDropped, this,
            qOverload<const QStringList&, int>(&ResourceListBox::addFiles));
    connect(view()->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ResourceListBox::updateActions);
    connect(view()->selectionModel(), &QItemSelectionModel::currentChanged, this, &ResourceListBox::showPreview);
    connect(view()->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ResourceListBox::showPreview);
    updateActions();
}

// Binding and showing

void ResourceListBox::setupWidget()
{
    setMessage({});
    PropertyObserver::setupWidget();
    showMixed();
    updateActions();
}

void ResourceListBox::unbind()
{
    PropertyObserver::unbind();
    updateActions();
}

void ResourceListBox::onPropertyValueChanged(Property, Value value)
{
    if (!hasCompatibleValues()) {
        showMixedSoon();
        return;
    }
    m_noValue = false;
    const bool fits = value.isValid() && isTypeCompatible(value.type());
    m_model->setResources(fits ? value.toResourceVector() : std::vector<Resource>());
    setPlaceholderText({});
    updateActions();
    showPreview();
}

void ResourceListBox::showMixed()
{
    if (m_props.empty() || hasCompatibleValues())
        return;
    m_noValue = true;
    m_model->setResources({});
    setPlaceholderText(tr("The selected parts have different lists. What is added becomes the list of all."));
    updateActions();
    showPreview();
}

Resource::Type ResourceListBox::wantedType() const
{
    if (const Resource::Type named = Resource::typeFromString(m_typeName); named != Resource::INVALID)
        return named;
    const std::vector<ResourceRow>& rows = m_model->rows();
    const Resource::Type first = rows.empty() ? Resource::INVALID : rows.front().resource.type();
    return first != Resource::INVALID ? first : Resource::IMAGE;
}

void ResourceListBox::updateActions()
{
    const bool writeable = !m_props.empty() && isPropertyWriteable();
    const QList<int> rows = selectedRows();
    m_model->setEditable(writeable);
    m_add->setEnabled(writeable);
    m_remove->setEnabled(writeable && !rows.isEmpty());
    moveUpAction()->setEnabled(writeable && !rows.isEmpty() && rows.back() >= rows.size());
    moveDownAction()->setEnabled(writeable && !rows.isEmpty() && rows.front() < m_model->rowCount() - rows.size());
}

void ResourceListBox::showPreview()
{
    const QList<int> selected = selectedRows();
    const int current = view()->currentIndex().row();
    const ResourceRow* row = m_model->rowAt(selected.contains(current) ? current : selected.value(0, -1));
    const bool shown = row && row->resource.type() == Resource::IMAGE;
    m_preview->setPixmap(shown ? ImageCache::getPixmap(row->resource, listPreview, devicePixelRatioF()) : QPixmap());
    m_preview->setAccessibleName(shown ? tr("Preview: %1").arg(row->label) : QString());
    m_preview->setVisible(shown);
}

// Editing

void ResourceListBox::write(const std::vector<Resource>& resources, const QList<int>& toSelect)
{
    if (m_props.empty() || !isPropertyWriteable())
        return;
    const Value value(resources);
    setMessage(refusalReason(value));
    if (!message().isEmpty() || !validateValue(value))
        return;
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    setPropertyValue(value);
    if (alive && binding == bindingNumber())
        selectRows(toSelect);
}

void ResourceListBox::addFiles()
{
    if (m_props.empty())
        return;
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    const QList<int> rows = selectedRows();
    const QStringList files =
        QFileDialog::getOpenFileNames(window(), tr("Add files"), QString(), getFileFilterForResourceType(wantedType()));
    if (alive && binding == bindingNumber() && !files.isEmpty())
        addFiles(files, rows.isEmpty() ? m_model->rowCount() : rows.back() + 1);
}

void ResourceListBox::addFiles(const QStringList& fileNames, int before)
{
    if (m_props.empty() || !isPropertyWriteable())
        return;
    setMessage({});
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    QString reason;
    std::vector<Resource> added = resourceImport::readFiles(wantedType(), fileNames, this, &reason);
    if (!alive || binding != bindingNumber() || !isPropertyWriteable())
        return;
    if (added.empty()) {
        setMessage(reason);
        return;
    }
    // The list may have changed while the files were read.
    before = qBound(0, before, m_model->rowCount());
    UndoGroup group(m_document);
    std::vector<Resource> all = m_model->resources();
    const bool kept = resourceImport::addTo(*m_document, group, added);
    if (!alive || binding != bindingNumber())
        return;
    if (kept) {
        all.insert(all.begin() + before, added.begin(), added.end());
        if (group.setAll(m_props, Value(all))) {
            if (alive && binding == bindingNumber())
                selectRows({before});
            return;
        }
    }
    if (alive)
        setMessage(group.error());
}

void ResourceListBox::removeSelected()
{
    const QList<int> rows = selectedRows();
    if (rows.isEmpty())
        return;
    std::vector<Resource> left;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (!std::binary_search(rows.begin(), rows.end(), row))
            left.push_back(m_model->rowAt(row)->resource);
    }
    const int next = qMin(rows.front(), static_cast<int>(left.size()) - 1);
    write(left, next < 0 ? QList<int>() : QList<int>{next});
}

void ResourceListBox::moveSelected(int by)
{
    const QList<int> rows = selectedRows();
    if (!rows.isEmpty())
        moveRows(rows, by < 0 ? qMax(rows.front() - 1, 0) : qMin(rows.back() + 2, m_model->rowCount()));
}

void ResourceListBox::moveRows(const QList<int>& rows, int before)
{
    const QList<int> order = rowDrag::orderAfter(m_model->rowCount(), rows, before);
    if (std::is_sorted(order.begin(), order.end()))
        return;
    std::vector<Resource> moved;
    QList<int> toSelect;
    for (int i = 0; i < order.size(); ++i) {
        moved.push_back(m_model->rowAt(order[i])->resource);
        if (std::binary_search(rows.begin(), rows.end(), order[i]))
            toSelect.append(i);
    }
    write(moved, toSelect);
}

QString ResourceListBox::refusalOf(int row, const QString& name) const
{
    const ResourceRow* renamed = m_model->rowAt(row);
    return renamed && m_document ? resourceRename::reason(*m_document, renamed->resource, name) : QString();
}

void ResourceListBox::rename(int row, const QString& name)
{
    const ResourceRow* renamed = m_model->rowAt(row);
    if (!renamed || m_props.empty() || !isPropertyWriteable())
        return;
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    QString error = resourceRename::rename(*m_document, renamed->resource, name);
    if (!alive)
        return;
    setMessage(error);
    if (error.isEmpty() && binding == bindingNumber())
        selectRows({row});
}

void ResourceListBox::changeEvent(QEvent* event)
{
    ListEditor::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void ResourceListBox::setEnabled(bool enabled)
{
    ListEditor::setEnabled(enabled && isPropertyWriteable());
}

void ResourceListBox::setDisabled(bool disabled)
{
    ListEditor::setDisabled(disabled || !isPropertyWriteable());
}
