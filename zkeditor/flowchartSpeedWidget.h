#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/propertyKey.h"
#include "zkcore/model/handles.h"
#include "zkeditor/export.h"

#include <QPointer>
#include <QWidget>

class DocumentImpl;
class ObserverButton;
class ObserverComboBox;

/// A strip for a tool bar or pane that sets how fast the flowcharts of a space run, and steps them by hand in the
/// manual mode. Disabled while no space is bound.
class ZKEDITOR_EXPORT FlowchartSpeedWidget : public QWidget
{
    Q_OBJECT

public:
    explicit FlowchartSpeedWidget(QWidget* parent = nullptr);
    FlowchartSpeedWidget(bool withLabel, QWidget* parent);
    ~FlowchartSpeedWidget() override;

    /// Shows and sets the speed of the space from now on. A null document, or a space that is gone, is fatal.
    void bind(DocumentImpl* doc, Space space);
    void unbind();
    /// Invalid while none is bound.
    Space space() const { return m_space; }

private Q_SLOTS:
    void onSpeedChanged();
    void onPauseChanged();
    void onSceneRemoved(Scene scene);
    void onPopupRemoved(Popup popup);

private:
    void init(bool withLabel);
    void disconnectFromSpace();

    static const PropertyKey s_propSpeed;
    static const PropertyKey s_propPause;
    static const ClassId s_spaceCid;

    QPointer<DocumentImpl> m_document;
    Space m_space;
    ObserverComboBox* m_speed = nullptr;
    ObserverButton* m_step = nullptr;
};
