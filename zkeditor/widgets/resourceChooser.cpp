#include "zkeditor/widgets/resourceChooser.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/media/resourceTable.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/errorLabel.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/resourceImport.h"
#include "zkeditor/widgets/resourceModel.h"
#include "zkeditor/widgets/toolAction.h"
#include "zkeditor/widgets/undoGroup.h"
#include "zkeditor/widgets/validatorSet.h"

#include <QAction>
#include <QDropEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QMimeData>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize chooserPreview(56, 56);

} // namespace

ResourceChooser::ResourceChooser(QWidget* parent, const QString& name)
    : QWidget(parent), PropertyObserver(this, Value::RESOURCE), m_preview(new QLabel(this)),
      m_list(new ComboBox(this, QStringLiteral("resources"))), m_model(new ResourceModel(this)),
      m_message(new ErrorLabel(this))
{
    setObjectName(name);
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setFixedSize(chooserPreview + QSize(6, 6));
    m_preview->setFrameShape(QFrame::StyledPanel);
    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setWordWrap(true);
    auto* items = new QListView(m_list);
    items->setUniformItemSizes(true);
    m_list->setView(items);
    m_list->setModel(m_model);
    m_list->setIconSize(QSize(24, 24));
    m_list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // the names must not widen a pane
    m_message->setObjectName(QStringLiteral("message"));
    m_message->hide();

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(2);
    m_import = addButton(buttons, "editor/lists/import", tr("Import a file"), {});
    m_export = addButton(buttons, "editor/lists/export", tr("Export to a file"), {});
    m_clear = addButton(buttons, "editor/lists/clear", tr("No resource"), Qt::Key_Delete);
    buttons->addStretch(1);
    auto* right = new QVBoxLayout;
    right->setSpacing(2);
    right->addWidget(m_list);
    right->addLayout(buttons);
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(m_preview);
    row->addLayout(right, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addLayout(row);
    column->addWidget(m_message);
    setFocusProxy(m_list);
    m_list->installEventFilter(this);
    setAcceptDrops(true);
    connect(m_import, &QAction::triggered, this, qOverload<>(&ResourceChooser::importFile));
    connect(m_export, &QAction::triggered, this, qOverload<>(&ResourceChooser::exportFile));
    connect(m_clear, &QAction::triggered, this, &ResourceChooser::clear);
    connect(m_list, &QComboBox::activated, this, &ResourceChooser::onWidgetValueChanged);
}

QAction* ResourceChooser::addButton(QHBoxLayout* row, const char* icon, const QString& text, const QKeySequence& keys)
{
    auto* action = new QAction(toolAction::icon(icon), text, this);
    row->addWidget(toolAction::addButton(this, action, keys));
    return action;
}

// Binding

void ResourceChooser::setupWidget()
{
    m_list->setAccessibleName(accessibleName());
    setMessage({});
    connect(m_document, &DocumentImpl::resourcesChanged, this, &ResourceChooser::followResources, Qt::UniqueConnection);
    buildList();
    PropertyObserver::setupWidget();
}

void ResourceChooser::unbind()
{
    m_list->hidePopup();
    // The document of an older binding may be gone, but not while properties of it are bound.
    if (!m_props.empty())
        disconnect(m_document, nullptr, this, nullptr);
    PropertyObserver::unbind();
}

Resource::Type ResourceChooser::wantedType() const
{
    if (const Resource::Type named = Resource::typeFromString(m_typeName); named != Resource::INVALID)
        return named;
    if (m_props.empty())
        return Resource::IMAGE;
    const Resource::Type present = m_props.front()->getValue().toResource().type();
    const Resource::Type usual = m_props.front()->definition().defaultValue.toResource().type();
    return present != Resource::INVALID ? present : usual != Resource::INVALID ? usual : Resource::IMAGE;
}

// Importing many files changes the resources many times; the list is built once.
void ResourceChooser::followResources()
{
    if (m_listPending)
        return;
    m_listPending = true;
    QTimer::singleShot(0, this, [this] {
        m_listPending = false;
        if (m_props.empty())
            return;
        buildList();
        showFirstValue();
    });
}

void ResourceChooser::buildList()
{
    const Resource::Type type = wantedType();
    const Resource usual = m_props.front()->definition().defaultValue.toResource();
    std::vector<Resource> offered;
    if (usual.isValid())
        offered.push_back(usual);
    for (const Resource& resource : m_document->localResources()) {
        if (resource.type() == type && validators().allow(Value(resource)))
            offered.push_back(resource);
    }
    const ShowingValue showing(this);
    m_model->setResources(offered);
}

void ResourceChooser::onPropertyValueChanged(Property, Value value)
{
    const bool one = value.isValid() && isTypeCompatible(value.type()) && hasCompatibleValues();
    show(one ? value.toResource() : Resource());
    m_export->setEnabled(one && m_shown.isValid());
    m_clear->setEnabled(!one || !m_shown.isNull());
    if (!one)
        m_preview->setText(tr("Different"));
}

void ResourceChooser::show(const Resource& resource)
{
    m_shown = resource;
    m_list->setPlaceholderText(resourceImport::nameOf(resource)); // first: an empty one would choose the first item
    m_list->setCurrentIndex(m_model->rowOf(std::pair<QString, int>(resource.toString(), 0)));
    m_list->setToolTip(resource.toString());
    m_preview->setPixmap(QPixmap());
    if (resource.isNull())
        m_preview->setText(tr("None"));
    else if (!resource.isValid())
        m_preview->setText(tr("Missing"));
    else if (resource.type() == Resource::IMAGE)
        m_preview->setPixmap(ImageCache::getPixmap(resource, chooserPreview, devicePixelRatioF()));
    else
        m_preview->setText(resource.entry()->extension().toUpper());
    m_preview->setAccessibleName(tr("Preview: %1").arg(resource.isNull() ? tr("None") : resource.toString()));
}

QString ResourceChooser::message() const
{
    return m_message->text();
}

void ResourceChooser::setMessage(const QString& message)
{
    m_message->setText(message);
    m_message->setVisible(!message.isEmpty());
    m_list->setAccessibleDescription(message);
}

// Editing

void ResourceChooser::choose(const Value& value)
{
    if (m_props.empty() || isShowingValue() || !isPropertyWriteable())
        return;
    setMessage(refusalReason(value));
    if (!message().isEmpty() || !validateValue(value))
        showFirstValue();
    else
        setPropertyValue(value);
}

void ResourceChooser::onWidgetValueChanged(int index)
{
    if (const ResourceRow* row = m_model->rowAt(index))
        choose(Value(row->resource));
}

void ResourceChooser::clear()
{
    choose(Value(Resource()));
}

void ResourceChooser::importFile()
{
    if (m_props.empty())
        return;
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    const QString fileName = QFileDialog::getOpenFileName(window(), tr("Import a file"), QString(),
                                                          getFileFilterForResourceType(wantedType()));
    if (alive && binding == bindingNumber() && !fileName.isEmpty())
        importFile(fileName);
}

void ResourceChooser::importFile(const QString& fileName)
{
    if (m_props.empty() || !isPropertyWriteable())
        return;
    QString reason;
    std::vector<Resource> read{resourceImport::readFile(wantedType(), fileName, &reason)};
    if (read.front().isValid())
        reason = refusalReason(Value(read.front()));
    setMessage(reason);
    if (!reason.isEmpty())
        return;
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    UndoGroup group(m_document);
    if (!resourceImport::addTo(*m_document, group, read) || !alive || binding != bindingNumber()) {
        if (alive)
            setMessage(group.error());
        return;
    }
    if (!group.setAll(m_props, Value(read.front())) && alive)
        setMessage(group.error());
}

void ResourceChooser::exportFile()
{
    if (!m_shown.isValid())
        return;
    const QPointer<POReceiver> alive(m_receiver);
    const Resource shown = m_shown;
    QFileDialog dialog(window(), tr("Export to a file"), QString(), getFileFilterForResourceType(shown.type()));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(shown.entry()->extension());
    dialog.selectFile(resourceImport::nameOf(shown) + QLatin1Char('.') + shown.entry()->extension());
    const QString fileName = dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
    if (alive && !fileName.isEmpty() && shown == m_shown)
        exportFile(fileName);
}

void ResourceChooser::exportFile(const QString& fileName)
{
    QString reason;
    if (m_shown.isValid())
        resourceImport::writeFile(m_shown, fileName, &reason);
    setMessage(reason);
}

bool ResourceChooser::event(QEvent* event)
{
    return toolAction::takeKey(this, event) || QWidget::event(event);
}

bool ResourceChooser::eventFilter(QObject* object, QEvent* event)
{
    return (object == m_list && toolAction::takeKey(this, event)) || QWidget::eventFilter(object, event);
}

void ResourceChooser::dragEnterEvent(QDragEnterEvent* event)
{
    if (!m_props.empty() && isPropertyWriteable() && !resourceImport::draggedFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ResourceChooser::dropEvent(QDropEvent* event)
{
    const QStringList files = resourceImport::draggedFiles(event->mimeData());
    if (m_props.empty() || files.isEmpty())
        return;
    event->acceptProposedAction();
    if (files.size() == 1)
        importFile(files.constFirst());
    else
        setMessage(tr("Only one file can be taken here."));
}

void ResourceChooser::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void ResourceChooser::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled && isPropertyWriteable());
}

void ResourceChooser::setDisabled(bool disabled)
{
    QWidget::setDisabled(disabled || !isPropertyWriteable());
}
