#pragma once

#include "zkcore/base/instanceId.h"
#include "zkcore/model/node.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/subpartSource.h"

class SubpartModel;

/// Chooses one of the subparts of a role of the selected part; with several parts, one that each of them has (same id
/// and class). In an ObserverGroupBox all other observers are bound to what is chosen here.
class ZKEDITOR_EXPORT SubpartComboBox : public ComboBox, public SubpartSource
{
    Q_OBJECT
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    explicit SubpartComboBox(QWidget* parent = nullptr, const QString& name = {});

    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    void unbind() override;

    // Settings take effect at the next bind().
    /// The roles of the subparts offered, or with a "/" their class; all subparts when empty.
    QString subpart() const;
    void setSubpart(const QString& selector);
    /// Without it nothing is offered while several parts are selected.
    bool supportsMultipleProps() const { return m_supportsMultipleProps; }
    void setSupportsMultipleProps(bool supports) { m_supportsMultipleProps = supports; }

    /// The chosen subpart, of the first part; invalid when there is none.
    Node selectedSubpart() const;
    /// Chooses one of the subparts offered; false when it is none of them.
    bool selectSubpart(const Node& subpart);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Another subpart is chosen (the invalid handle: none), by the user, because the chosen one went away, or because
    /// other parts were bound.
    void selectedSubpartChanged(Node subpart);

protected:
    QWidget* sourceWidget() override { return this; }
    std::set<NodeImpl*> chosenNodes() const override;
    DocumentImpl* chosenDocument() const override;

private:
    void onIndexChanged();
    void onSynced();
    void follow();

    SubpartModel* m_model;
    InstanceId m_chosen = 0;
    bool m_supportsMultipleProps = true;
    bool m_following = false;
};
