#include "zkeditor/formBindingCheck.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/nodeDb.h"
#include "zkeditor/formClasses.h"
#include "zkeditor/formObservers.h"
#include "zkeditor/nearestWord.h"

#include <algorithm>

namespace {

/// As a subpart plays it that a class prescribes, or any of the class.
RoleSet rolesOf(const NodePrototype& prototype, const SubpartDefinition* prescribed)
{
    if (prescribed) {
        for (const auto& [key, value] : prescribed->values)
            if (key == coreKeys::roles() && !value.toQString().isEmpty())
                return RoleSet(value.toQString());
    }
    const PropertyDefinition* own = prototype.find(coreKeys::roles());
    const QString text = own ? own->defaultValue.toQString() : QString();
    return text.isEmpty() ? prototype.roles : RoleSet(text);
}

QString buttonText(const FormObject& button)
{
    if (const FormProperty* value = button.property("value"); value && !value->text.isEmpty())
        return value->text;
    QString plain;
    const QString text = button.text("text");
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && ++i == text.size())
            break;
        plain += text[i];
    }
    return plain;
}

} // namespace

FormBindingCheck::FormBindingCheck(const FormDescription& form, const NodePrototype& prototype, const NodeDb& classes)
    : m_form(form), m_prototype(prototype), m_classes(classes),
      m_ofSpaces(prototype.kind != NodeKind::Part && prototype.kind != NodeKind::Subpart)
{
}

std::vector<FormFinding> FormBindingCheck::run()
{
    Context context;
    context.nodes.push_back({&m_prototype, true});
    // Only what stands in sections is bound by panes.
    const auto isSection = [this](const FormObject& object) {
        return formClasses::inherits(metaObjectOf(object), "PaletteBoxSection");
    };
    if (isSection(*m_form.top)) {
        bindChildren(*m_form.top, context);
    } else {
        bool any = false;
        const auto look = [&](const FormObject& parent, const auto& again) -> void {
            for (const auto& child : parent.children) {
                if (child->kind == FormObject::Layout) {
                    again(*child, again);
                } else if (isSection(*child)) {
                    any = true;
                    bindChildren(*child, context);
                }
            }
        };
        look(*m_form.top, look);
        if (!any) // no pane shows it, but a program may bind it as a whole
            bindObject(*m_form.top, context);
    }
    return std::move(m_findings);
}

const QMetaObject* FormBindingCheck::metaObjectOf(const FormObject& object) const
{
    if (object.kind != FormObject::Widget)
        return nullptr;
    const QMetaObject* found = formClasses::widget(object.className);
    for (QString name = object.className; !found && m_form.customWidgets.contains(name);) {
        name = m_form.customWidgets.value(name);
        found = formClasses::widget(name);
    }
    return found;
}

void FormBindingCheck::add(FormFinding::Severity severity, const FormObject& object, const char* property,
                           const QString& text)
{
    FormFinding finding;
    finding.severity = severity;
    const FormProperty* given = property ? object.property(property) : nullptr;
    finding.line = given ? given->line : object.line;
    finding.widget = object.name;
    finding.widgetClass = object.className;
    finding.property = QLatin1String(property);
    finding.text = text;
    finding.classes.append(findStringForCid(m_prototype.cid));
    m_findings.push_back(std::move(finding));
}

const PropertyDefinition* FormBindingCheck::find(const NodePrototype& prototype, const QString& key) const
{
    // Compared as texts: keys are kept for ever, and these come from anywhere.
    for (const PropertyDefinition& definition : prototype.properties())
        if (definition.key.toString() == key)
            return &definition;
    return nullptr;
}

// What is bound

void FormBindingCheck::bindChildren(const FormObject& object, const Context& context)
{
    for (const auto& child : object.children)
        bindObject(*child, context);
}

void FormBindingCheck::bindObject(const FormObject& object, const Context& context)
{
    switch (formObservers::bindingOf(metaObjectOf(object))) {
    case formObservers::Binding::None:
        bindChildren(object, context);
        break;
    case formObservers::Binding::Observer:
        bindObserver(object, context);
        break;
    case formObservers::Binding::ObserverGroup: {
        bindObserver(object, context);
        Context inside = context;
        inside.isGuarded = false;
        bindChildren(object, inside);
        break;
    }
    case formObservers::Binding::OptionalGroup:
        bindGroup(object, context);
        break;
    case formObservers::Binding::SubpartSource: {
        Candidates chosen;
        checkSource(object, context, chosen);
        break;
    }
    }
}

void FormBindingCheck::bindGroup(const FormObject& object, const Context& context)
{
    if (!object.text("modelProperty").isEmpty())
        bindObserver(object, context);
    Context inside = context;
    inside.isGuarded = false;
    const FormObject* source = sourceIn(object);
    if (!source) {
        bindChildren(object, inside);
        return;
    }
    inside.nodes.clear();
    inside.isChosen = true;
    inside.isGuarded = true;
    checkSource(*source, context, inside.nodes);
    if (inside.nodes.empty())
        return; // nothing can be chosen, so nothing else in the box is bound
    const auto others = [&](const FormObject& parent, const auto& again) -> void {
        for (const auto& child : parent.children) {
            if (child.get() == source)
                continue;
            if (formObservers::bindingOf(metaObjectOf(*child)) == formObservers::Binding::None)
                again(*child, again);
            else
                bindObject(*child, inside);
        }
    };
    others(object, others);
}

/// The first subpart source in a group box, as the box itself looks for it.
const FormObject* FormBindingCheck::sourceIn(const FormObject& object) const
{
    for (const auto& child : object.children) {
        const formObservers::Binding binding = formObservers::bindingOf(metaObjectOf(*child));
        if (binding == formObservers::Binding::SubpartSource)
            return child.get();
        if (binding == formObservers::Binding::None) {
            if (const FormObject* found = sourceIn(*child))
                return found;
        }
    }
    return nullptr;
}

void FormBindingCheck::checkSource(const FormObject& object, const Context& context, Candidates& chosen)
{
    if (m_ofSpaces) {
        add(FormFinding::Error, object, nullptr, tr("scenes and pop-ups have no subparts to choose from"));
        return;
    }
    chosen = select(context.nodes, object.text("subpart"), false);
    if (chosen.empty())
        add(FormFinding::Warning, object, "subpart",
            tr("the list stays empty: nodes of the class have no such subparts, and none can be added"));
}

FormBindingCheck::Candidates FormBindingCheck::select(const Candidates& nodes, const QString& selector,
                                                      bool rolesInParts) const
{
    const bool byClass = selector.contains(QLatin1Char('/'));
    const RoleSet roles(byClass ? QString() : selector);
    Candidates found;
    for (const Candidate& node : nodes) {
        if (rolesInParts && !byClass && node.prototype->kind != NodeKind::Part)
            continue;
        for (const SubpartDefinition& prescribed : node.prototype->subparts) {
            const NodePrototype* subpart = m_classes.lookupPrototype(prescribed.cid);
            if (!subpart)
                continue;
            const bool selected = selector.isEmpty() || (byClass ? findStringForCid(subpart->cid) == selector
                                                                 : rolesOf(*subpart, &prescribed).intersects(roles));
            if (selected)
                found.push_back({subpart, node.isCertain});
        }
        addAllowed(*node.prototype, selector, found);
    }
    return found;
}

/// Subparts that the user may add, which are there or not.
void FormBindingCheck::addAllowed(const NodePrototype& prototype, const QString& selector, Candidates& found) const
{
    if (prototype.rules.empty())
        return;
    const bool byClass = selector.contains(QLatin1Char('/'));
    const RoleSet roles(byClass ? QString() : selector);
    for (const NodePrototype* subpart : m_classes.prototypes()) {
        if (subpart->kind != NodeKind::Subpart || subpart->abstract || !prototype.ruleFor(subpart->cid))
            continue;
        const bool selected = selector.isEmpty() || (byClass ? findStringForCid(subpart->cid) == selector
                                                             : rolesOf(*subpart, nullptr).intersects(roles));
        const auto same = [subpart](const Candidate& other) { return other.prototype == subpart; };
        if (selected && std::none_of(found.begin(), found.end(), same))
            found.push_back({subpart, false});
    }
}

// Observers

QString FormBindingCheck::noProperty(const Candidates& nodes, const QString& key) const
{
    QStringList known;
    for (const PropertyDefinition& definition : nodes.front().prototype->properties()) {
        const QString text = definition.key.toString();
        if (!text.startsWith(QLatin1String("meta-")))
            known.append(text);
    }
    const QString shown = key.simplified().left(60);
    const QString meant = nearestWord(key, known);
    return meant.isEmpty() ? tr("there is no property \"%1\" to bind").arg(shown)
                           : tr("there is no property \"%1\" to bind; did you mean \"%2\"?").arg(shown, meant);
}

void FormBindingCheck::bindObserver(const FormObject& object, const Context& context)
{
    const QString key = object.text("modelProperty");
    if (key.isEmpty()) {
        add(FormFinding::Error, object, "modelProperty", tr("the key of the property to bind is missing"));
        return;
    }
    // Observers of spaces do not look at subparts.
    const QString selector = m_ofSpaces ? QString() : object.text("subpart");
    const Candidates nodes = selector.isEmpty() ? context.nodes : select(context.nodes, selector, true);
    if (nodes.empty()) {
        add(FormFinding::Error, object, "subpart",
            tr("there are no subparts \"%1\" to bind").arg(selector.simplified().left(60)));
        return;
    }
    std::vector<const PropertyDefinition*> properties;
    bool allHaveIt = true;
    bool oneCertainlyHasIt = false;
    for (const Candidate& node : nodes) {
        const PropertyDefinition* property = find(*node.prototype, key);
        allHaveIt = allHaveIt && property;
        oneCertainlyHasIt = oneCertainlyHasIt || (property && node.isCertain);
        if (property)
            properties.push_back(property);
    }
    const bool isUnitChooser = formClasses::inherits(metaObjectOf(object), "UnitChooser"); // which only warns
    const bool isGuarded = (context.isGuarded && selector.isEmpty()) || isUnitChooser;
    if (properties.empty()) {
        add(FormFinding::Error, object, "modelProperty", noProperty(nodes, key));
        return;
    }
    // What the user chooses may be of any of the classes.
    if (context.isChosen && !isGuarded && !(selector.isEmpty() ? allHaveIt : oneCertainlyHasIt)) {
        add(FormFinding::Error, object, "modelProperty",
            tr("not all subparts that can be chosen have the property \"%1\"").arg(key.simplified().left(60)));
    } else if (!context.isChosen && !selector.isEmpty() && !isGuarded) {
        if (!oneCertainlyHasIt)
            add(FormFinding::Warning, object, "subpart",
                tr("new nodes have no subparts \"%1\": the form is not shown for them")
                    .arg(selector.simplified().left(60)));
        m_needs.push_back({selector, key});
    }
    checkTypes(object, properties);
    if (formObservers::bindingOf(metaObjectOf(object)) == formObservers::Binding::ObserverGroup)
        checkChoices(object, object, *properties.front());
}

void FormBindingCheck::checkTypes(const FormObject& object, const std::vector<const PropertyDefinition*>& properties)
{
    const QMetaObject* metaObject = metaObjectOf(object);
    const QList<Value::Type> types = formObservers::typesOf(metaObject, object);
    for (const PropertyDefinition* property : properties) {
        const QString key = property->key.toString();
        if (!types.isEmpty() && !types.contains(property->type)) {
            add(FormFinding::Error, object, "modelProperty",
                tr("\"%1\" is of the type %2, but the control takes %3")
                    .arg(key, Value::typeAsString(property->type), formObservers::namesOfTypes(types)));
            return;
        }
        if (formObservers::isFatalChoice(metaObject, *property)) {
            add(FormFinding::Error, object, "modelProperty",
                tr("the values that \"%1\" may take cannot be listed").arg(key));
            return;
        }
    }
    const QString weakness = formObservers::weaknessWith(metaObject, *properties.front());
    if (!weakness.isEmpty())
        add(FormFinding::Warning, object, "modelProperty", weakness);
}

void FormBindingCheck::checkChoices(const FormObject& group, const FormObject& object,
                                    const PropertyDefinition& property)
{
    for (const auto& child : object.children) {
        const QMetaObject* metaObject = metaObjectOf(*child);
        if (formClasses::inherits(metaObject, "QRadioButton")) {
            const QString fault = formObservers::choiceFault(property, buttonText(*child));
            if (!fault.isEmpty())
                add(FormFinding::Warning, *child, child->property("value") ? "value" : "text",
                    tr("the button stands for nothing in the group '%1': %2").arg(group.name, fault));
        } else if (formObservers::bindingOf(metaObject) == formObservers::Binding::None) {
            checkChoices(group, *child, property);
        }
    }
}
