#pragma once

#include "zkcore/base/instanceId.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QStringList>
#include <vector>

class QCompleter;
class QStringListModel;

/// Edits the ids of parts. While a text is typed that cannot be the id it is red with the reason as tool tip, and a
/// free id close to it is offered below. With several parts the text is a pattern for all: numbered from 1, or from the
/// number that it ends with; "#" marks another place for the number. What they will be called is shown before it is
/// written, in one undo step, on Return or when the focus goes. Escape gives the old text back.
class ZKEDITOR_EXPORT PartIdLineEdit : public LineEdit, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    explicit PartIdLineEdit(QWidget* parent = nullptr, const QString& name = {});

    void unbind() override;

    /// The ids that the nodes get with the text that is typed, in the order of the nodes' making; empty when it cannot
    /// be used.
    QStringList proposedIds() const;
    /// What is shown of them before they are written; empty unless something is typed for several parts.
    QString preview() const { return m_preview; }
    /// A free id close to the text that was typed and is taken; empty when there is none to offer.
    QString suggestion() const;

public Q_SLOTS:
    /// Writes what was typed; a text that cannot be used gives way to the id there is.
    void applyText();
    /// Does not enable the field over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

Q_SIGNALS:
    /// What preview() gives is another text now.
    void previewChanged(const QString& text);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void onPropertyDeleted(QObject* object) override;

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void onTextEdited();
    void showModel();
    void setPreview(const QString& text);
    QString refusal() const;
    /// The bound nodes, by their ids.
    const std::vector<InstanceId>& nodes() const;

    QCompleter* m_offers;
    QStringListModel* m_offered;
    QString m_preview;
    mutable std::vector<InstanceId> m_nodes; // filled when somebody types
};
