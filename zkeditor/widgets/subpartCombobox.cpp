#include "zkeditor/widgets/subpartCombobox.h"

#include "zkcore/model/documentImpl.h"
#include "zkeditor/widgets/subpartModel.h"

#include <QAbstractItemView>
#include <QListView>
#include <QScopedValueRollback>

SubpartComboBox::SubpartComboBox(QWidget* parent, const QString& name)
    : ComboBox(parent, name), m_model(new SubpartModel(this))
{
    auto* list = new QListView(this);
    list->setUniformItemSizes(true);
    setView(list);
    setModel(m_model);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setPlaceholderText(tr("None"));
    setEnabled(false);
    connect(this, &QComboBox::currentIndexChanged, this, &SubpartComboBox::onIndexChanged);
    connect(m_model, &SubpartModel::synced, this, &SubpartComboBox::onSynced);
}

QString SubpartComboBox::subpart() const
{
    return m_model->selector();
}

void SubpartComboBox::setSubpart(const QString& selector)
{
    m_model->setSelector(selector);
}

QSize SubpartComboBox::sizeHint() const
{
    QSize hint = ComboBox::minimumSizeHint();
    hint.setWidth(hint.width() + fontMetrics().averageCharWidth() * 10);
    return hint;
}

// Binding

void SubpartComboBox::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    const QPointer<SubpartComboBox> alive(this);
    {
        const QScopedValueRollback<bool> following(m_following, true);
        if (m_supportsMultipleProps || nodes.size() < 2)
            m_model->bind(document, nodes);
        else
            m_model->unbind();
        setCurrentIndex(qMax(m_model->rowOf(m_chosen), m_model->rowCount() > 0 ? 0 : -1));
        setEnabled(m_model->rowCount() > 0);
        if (accessibleName().isEmpty())
            setAccessibleName(tr("Subpart"));
    }
    follow();
}

void SubpartComboBox::unbind()
{
    const QScopedValueRollback<bool> following(m_following, true);
    m_model->unbind();
    setEnabled(false);
}

void SubpartComboBox::onSynced()
{
    {
        const QScopedValueRollback<bool> following(m_following, true);
        const int row = m_model->rowOf(m_chosen);
        if (row >= 0 || currentIndex() < 0)
            setCurrentIndex(row >= 0 || m_model->rowCount() == 0 ? row : 0);
        setEnabled(m_model->rowCount() > 0);
    }
    follow();
}

void SubpartComboBox::onIndexChanged()
{
    if (!m_following)
        follow();
}

// Tells once what is chosen now.
void SubpartComboBox::follow()
{
    const SubpartRow* row = m_model->rowAt(currentIndex());
    const InstanceId chosen = row ? row->key() : 0;
    if (chosen == m_chosen)
        return;
    m_chosen = chosen;
    const QPointer<SubpartComboBox> alive(this);
    handOn();
    if (alive)
        Q_EMIT selectedSubpartChanged(selectedSubpart());
}

Node SubpartComboBox::selectedSubpart() const
{
    const DocumentImpl* document = m_model->document();
    return document ? Node(document->nodeById(m_chosen)) : Node();
}

bool SubpartComboBox::selectSubpart(const Node& subpart)
{
    m_model->sync();
    const int row = m_model->rowOf(subpart.instanceId());
    if (row >= 0)
        setCurrentIndex(row);
    return row >= 0;
}

std::set<NodeImpl*> SubpartComboBox::chosenNodes() const
{
    return m_model->nodesOf(m_model->rowOf(m_chosen));
}

DocumentImpl* SubpartComboBox::chosenDocument() const
{
    return m_model->document();
}
