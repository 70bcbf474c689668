#pragma once

#include "zkcore/values/unit.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QLabel>
#include <vector>

class QMenu;

/// A label beside a numeric editor that names the unit in which the bound properties are shown; a click, or Space,
/// opens a menu of the units that they offer. Chooses units, never writes values.
class ZKEDITOR_EXPORT UnitChooser : public QLabel, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    // The chooser's own business.
    Q_PROPERTY(QString text READ text WRITE setText DESIGNABLE false)
    Q_PROPERTY(QPixmap pixmap READ pixmap WRITE setPixmap DESIGNABLE false)

public:
    explicit UnitChooser(QWidget* parent = nullptr, const QString& name = {});
    ~UnitChooser() override;

    /// Nodes without the property, and properties that offer other units than the first, are warnings; none that has a
    /// unit is one as well.
    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    /// The menu of units, whose items carry the index of their unit; null when there is no choice. Owned by the label.
    QMenu* getPopup() const;

public Q_SLOTS:
    /// Does not enable the label over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);
    /// Shows the bound properties in the unit of that index.
    void onPopupUnitChanged(int uindex);
    void onFormatChanged();

Q_SIGNALS:
    /// After the user picked another unit.
    void unitChanged();

protected:
    void onPropertyValueChanged(Property property, Value value) override;
    void onValidatorChanged() override;
    void dropSharedConnections() override;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    static QString getUnitName(const Unit& unit);
    PropertyImpl* propertyOf(NodeImpl* node, Property::Key key) const;
    void addUnits(const PropertyImpl* property);
    void rebuildPopup();
    void togglePopup(const QPoint& globalPosition);
    void showUnit(const Unit& unit);
    void setClickable(bool clickable);
    void reset();

    std::vector<Unit> m_units;
    Unit m_currentUnit;
    QMenu* m_popup;
    bool m_settingUnit = false;
    bool m_menuAtWork = false;    // a choice in the menu is being followed
    bool m_closedByPress = false; // the press that ended the menu was on the label
};
