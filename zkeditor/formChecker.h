#pragma once

#include "zkcore/base/classId.h"
#include "zkeditor/export.h"
#include "zkeditor/formDescription.h"
#include "zkeditor/formFinding.h"

#include <QByteArray>
#include <vector>

class NodeDb;
class NodePrototype;

/// Tells what is wrong with a form before anything of it is made: what would keep it from being read, what would end
/// the program when it is bound to nodes of a class, and what does not do what its author seems to want. Makes no
/// widgets (but see FormFactory::metaObjectOf()) and takes any bytes.
class ZKEDITOR_EXPORT FormChecker
{
public:
    /// A subpart that an observer binds, but that nodes of the class may have or not. A form is safe to bind to nodes
    /// one of which has a child that the selector selects and that has the property.
    struct Need
    {
        QString selector; ///< see PropertyObserver::setSubpartId()
        QString key;
    };

    /// Reads the form and checks what does not depend on the class of the nodes.
    explicit FormChecker(const QByteArray& form);
    ~FormChecker();
    FormChecker(const FormChecker&) = delete;
    FormChecker& operator=(const FormChecker&) = delete;

    /// What is wrong whatever the form edits, in the order of the lines. At most `maximumFindings`.
    const std::vector<FormFinding>& findings() const { return m_findings; }
    /// What is wrong in addition when the form edits nodes of the class: parts, spaces, or a domain's properties of
    /// spaces. Empty for a form that cannot be read. The needs of the class are added where they are wanted.
    std::vector<FormFinding> check(const NodePrototype& prototype, const NodeDb& classes,
                                   std::vector<Need>* needs = nullptr) const;

    /// findings() and those of check() for several classes together: what is the same for several classes is said once.
    std::vector<FormFinding> checkAll(const std::vector<const NodePrototype*>& prototypes, const NodeDb& classes) const;

    static bool hasErrors(const std::vector<FormFinding>& findings);
    /// The classes of which there can be nodes that show the form of that name (a resource).
    static std::vector<const NodePrototype*> classesThatShow(const QString& form, const NodeDb& classes);

    static constexpr int maximumFindings = 100;

private:
    FormDescription m_form;
    bool m_readable = false;
    std::vector<FormFinding> m_findings;
};
