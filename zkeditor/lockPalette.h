#pragma once

#include "zkeditor/editPalette.h"
#include "zkeditor/export.h"

#include <QPointer>
#include <set>

class ElementImpl;
class LockUICheckBox;
class OrientationLockUICheckBox;

/// Locks the selected parts against being moved, resized, turned, or having their property values edited.
class ZKEDITOR_EXPORT LockPalette : public EditPalette
{
    Q_OBJECT

public:
    LockPalette(QWidget* parent, const char* name);
    LockPalette(Place place, QWidget* parent, const char* name);
    ~LockPalette() override;

    /// Null is fatal.
    void setDocument(DocumentImpl* document) override;
    void resetCaption() override;
    void setupTopLevelWidgets() override;

public Q_SLOTS:
    /// Shows the locks of the selection; a hidden palette does so when it is shown.
    void selectionChanged();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private Q_SLOTS:
    void onLockPropertiesChanged();

private:
    void bindObservers(const std::set<ElementImpl*>& elements);
    void unbindObservers();

    QPointer<DocumentImpl> m_document;
    LockUICheckBox* m_values = nullptr;
    LockUICheckBox* m_position = nullptr;
    LockUICheckBox* m_size = nullptr;
    OrientationLockUICheckBox* m_orientation = nullptr;
};
