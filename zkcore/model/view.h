#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/handles.h"

#include <QObject>
#include <vector>

/// Something that shows one space of a document. Implemented by the host's views.
class ZKCORE_EXPORT View
{
public:
    View() = default;
    virtual ~View();
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    /// The space shown; invalid handle when it is gone.
    virtual Space space() const = 0;
};

/// Knows the open views and which of them has the focus. Owned by the host.
class ZKCORE_EXPORT ViewManager : public QObject
{
    Q_OBJECT

public:
    explicit ViewManager(QObject* parent = nullptr);
    ~ViewManager() override;

    /// Views are owned by the host, which removes a view before it destroys it.
    void addView(View* view);
    /// The focus goes to the view added last of those that stay.
    void removeView(View* view);
    void setFocusedView(View* view);
    View* focusedView() const { return m_focused; }
    const std::vector<View*>& views() const { return m_views; }

    /// The space shown by the focused view; invalid handle when there is none.
    Space getFocusedSpace() const;
    /// Tells that the focused view shows another space now: emits viewChanged(view, view).
    void notifySpaceChanged(View* view);

Q_SIGNALS:
    /// The view that had the focus and the one that has it now; either may be null.
    void viewChanged(View*, View*);

private:
    std::vector<View*> m_views;
    View* m_focused = nullptr;
};
