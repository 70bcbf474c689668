#pragma once

#include "zkcore/base/instanceId.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/listEditor.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <functional>
#include <memory>

class ComboBox;
class Command;
class LineEdit;
class PartChoiceModel;
class PropertyChoiceModel;
class QLabel;
class QSortFilterProxyModel;

/// Lets a property follow another one: lists the properties of all parts, or of one, with their types and values, and
/// says of each whether it may be followed and if not why. A double click or Return links; the link can be ended again.
/// Each is one undo step, however many nodes are selected.
class ZKEDITOR_EXPORT PropertyListBox : public ListEditor, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    explicit PropertyListBox(QWidget* parent = nullptr, const QString& name = {});

    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    void unbind() override;
    /// What follows another property cannot be edited, but linked and detached all the same.
    bool isPropertyWriteable() const override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }

    LineEdit* searchField() const { return m_search; }
    ComboBox* partBox() const { return m_parts; }
    PropertyChoiceModel* model() const { return m_model; }
    /// Shows what the properties follow, or that they do not follow the same; its text is empty when none follows.
    QLabel* linkLabel() const { return m_link; }

public Q_SLOTS:
    /// Makes the bound properties follow the one of the current row.
    void link();
    void detach();
    /// Does not enable the box over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void onStateChanged() override;
    void updateActions() override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void listParts();
    /// 0 for all.
    InstanceId chosenPart() const;
    void listProperties();
    enum Follow { FollowValues = 1, FollowLink = 2, FollowParts = 4 };
    void followSoon(unsigned int what);
    void showLink();
    void forEachFollower(const std::function<std::unique_ptr<Command>(const Property&, bool)>& makeCommand);
    int currentRow() const;

    LineEdit* m_search;
    ComboBox* m_parts;
    PartChoiceModel* m_choices;
    QLabel* m_link;
    PropertyChoiceModel* m_model;
    QSortFilterProxyModel* m_found;
    QAction* m_linkAction;
    QAction* m_detachAction;
    unsigned int m_pending = 0; // of Follow
    bool m_anyLinked = false;
    mutable size_t m_fixedAt = 0;
    size_t m_linkDiffersAt = 0;
    size_t m_linkedAt = 0;
};
