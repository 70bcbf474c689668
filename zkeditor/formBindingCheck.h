#pragma once

#include "zkcore/values/value.h"
#include "zkeditor/formChecker.h"

#include <QCoreApplication>
#include <QList>
#include <vector>

class NodeDb;
class NodePrototype;
struct PropertyDefinition;

/// Goes through a form as binding it to nodes of a class would.
class FormBindingCheck
{
    Q_DECLARE_TR_FUNCTIONS(FormChecker)

public:
    FormBindingCheck(const FormDescription& form, const NodePrototype& prototype, const NodeDb& classes);

    std::vector<FormFinding> run();
    const std::vector<FormChecker::Need>& needs() const { return m_needs; }

private:
    /// A class whose nodes an observer may be bound to, and whether there always are some.
    struct Candidate
    {
        const NodePrototype* prototype = nullptr;
        bool isCertain = true;
    };
    using Candidates = std::vector<Candidate>;
    struct Context
    {
        Candidates nodes;
        bool isChosen = false;  ///< the nodes are what the user chooses in a subpart source
        bool isGuarded = false; ///< an observer whose property they lack is left unbound
    };

    void bindObject(const FormObject& object, const Context& context);
    void bindChildren(const FormObject& object, const Context& context);
    void bindObserver(const FormObject& object, const Context& context);
    void bindGroup(const FormObject& object, const Context& context);
    const FormObject* sourceIn(const FormObject& object) const;
    void checkSource(const FormObject& object, const Context& context, Candidates& chosen);
    void checkTypes(const FormObject& object, const std::vector<const PropertyDefinition*>& properties);
    void checkChoices(const FormObject& group, const FormObject& object, const PropertyDefinition& property);
    /// The subparts that a selector selects. Observers, unlike lists of subparts, find roles in parts only.
    Candidates select(const Candidates& nodes, const QString& selector, bool rolesInParts) const;
    void addAllowed(const NodePrototype& prototype, const QString& selector, Candidates& found) const;
    const PropertyDefinition* find(const NodePrototype& prototype, const QString& key) const;
    QString noProperty(const Candidates& nodes, const QString& key) const;
    const QMetaObject* metaObjectOf(const FormObject& object) const;
    void add(FormFinding::Severity severity, const FormObject& object, const char* property, const QString& text);

    const FormDescription& m_form;
    const NodePrototype& m_prototype;
    const NodeDb& m_classes;
    bool m_ofSpaces;
    std::vector<FormFinding> m_findings;
    std::vector<FormChecker::Need> m_needs;
};
