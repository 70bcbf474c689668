#pragma once

#include "zkcore/model/handles.h"

#include <QPointer>
#include <QToolBar>

class AnimatedButton;
class DocumentImpl;
class FlowchartRunner;
class FlowchartSpeedWidget;
class ObserverButton;
class PartImpl;
class PopupImpl;
class ReaderActions;
class SpaceImpl;

/// The tool bar that runs the document's flowcharts: start and stop, pause, and the speed of the space on view. While
/// they run, switches of the scene are pressed with the mouse or their keys, and the click actions of parts are carried
/// out.
class FlowchartBar : public QToolBar
{
    Q_OBJECT

public:
    explicit FlowchartBar(QWidget* parent = nullptr);
    ~FlowchartBar() override;

    /// Not owned; null lets go of the document.
    void setDocument(DocumentImpl* document);
    /// The space on view, whose speed is shown; null for none.
    void setSpace(SpaceImpl* space);
    bool isRunning() const;
    FlowchartRunner* runner() const { return m_runner; }
    /// For the menu; checked while the flowcharts run.
    QAction* runAction() const { return m_run; }

    /// A mouse button went down or up over a part while the flowcharts run.
    void pressPart(PartImpl* part, bool down);
    /// A key was pressed or released over the scene. False when no switch takes it.
    bool pressKey(QChar key, bool down);
    /// The mouse has come to rest on a part.
    void restOn(const PartImpl& part);
    /// A pop-up was closed by the user.
    void leavePopup(const PopupImpl& popup);

Q_SIGNALS:
    void runningChanged(bool running);
    /// A click action asks for a space to be shown.
    void spaceRequested(const Node& space);
    /// One translated sentence for the status bar.
    void noticed(const QString& text);

private:
    void setRunning(bool run);
    void bindPause();
    void showMessage(const QString& text);

    QPointer<DocumentImpl> m_document;
    FlowchartRunner* m_runner;
    ReaderActions* m_reader;
    QAction* m_run;
    AnimatedButton* m_button;
    ObserverButton* m_pause;
    FlowchartSpeedWidget* m_speed;
};
