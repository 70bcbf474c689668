#pragma once

#include "zkeditor/export.h"
#include "zkeditor/formChecker.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QPointer>
#include <QSet>
#include <memory>
#include <set>
#include <utility>
#include <vector>

class NodeImpl;
class QWidget;

/// For programs that show forms of anybody: the panes then load their forms through the gate, which lets none through
/// that could end the program when it is bound. In its place stands a section that tells the form's author what is
/// wrong; the log gets the same, once. One gate serves the whole process; it is open unless it is closed.
class ZKEDITOR_EXPORT FormGate
{
    Q_DECLARE_TR_FUNCTIONS(FormGate)

public:
    static FormGate& instance();

    /// Whether the panes check their forms.
    bool isClosed() const { return m_isClosed; }
    void setClosed(bool closed) { m_isClosed = closed; }

    /// Makes the widgets of a form that nodes of the class are to be bound to, or the section with the message. Never
    /// null; owned by the caller. A form is checked once for each class, and again only when its file or the document
    /// is another; with nothing to complain of, the number of nodes does not matter.
    std::unique_ptr<QWidget> load(const QString& name, const NodePrototype& prototype, const NodeDb& classes,
                                  const std::set<NodeImpl*>& nodes);

private:
    struct Checked
    {
        QByteArray form;
        std::vector<FormFinding> findings;
        std::vector<FormChecker::Need> needs;
    };

    FormGate() = default;
    const Checked& check(const QString& name, const QByteArray& form, const NodePrototype& prototype,
                         const NodeDb& classes);
    std::unique_ptr<QWidget> refuse(const QString& name, std::vector<FormFinding> findings);

    bool m_isClosed = false;
    QPointer<const NodeDb> m_classes; // that the results are for
    QHash<std::pair<QString, ClassId>, Checked> m_checked;
    QSet<QString> m_logged;
};
