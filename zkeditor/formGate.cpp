#include "zkeditor/formGate.h"

#include "zkcore/media/resource.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/nodeDb.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/formFaultSection.h"
#include "zkeditor/loadUIFromResource.h"

#include <algorithm>

namespace {

constexpr int keptLogs = 1000;

FormFinding formFault(const QString& text, const NodePrototype* prototype)
{
    FormFinding finding;
    finding.text = text;
    if (prototype)
        finding.classes.append(findStringForCid(prototype->cid));
    return finding;
}

bool hasNeededSubpart(const NodeImpl* node, const FormChecker::Need& need, const RoleSet& roles)
{
    const bool byClass = need.selector.contains(QLatin1Char('/'));
    const auto serves = [&](NodeImpl* child) {
        const bool selected = byClass ? findStringForCid(child->classId()) == need.selector
                              : child->kind() == NodeKind::Subpart
                                  ? static_cast<const ElementImpl*>(child)->getRoles().intersects(roles)
                                  : false;
        return selected && child->hasProperty(PropertyKey::fromString(need.key));
    };
    if (!byClass && node->kind() != NodeKind::Part)
        return false;
    for (NodeImpl* child : node->children())
        if (serves(child))
            return true;
    return false;
}

} // namespace

FormGate& FormGate::instance()
{
    static FormGate* const gate = new FormGate;
    return *gate;
}

std::unique_ptr<QWidget> FormGate::load(const QString& name, const NodePrototype& prototype, const NodeDb& classes,
                                        const std::set<NodeImpl*>& nodes)
{
    const Resource resource(name);
    if (!resource.isValid() || resource.type() != Resource::FORM)
        return refuse(name, {formFault(tr("there is no form of this name"), &prototype)});
    const Checked& checked = check(name, resource.data(), prototype, classes);
    if (FormChecker::hasErrors(checked.findings))
        return refuse(name, checked.findings);
    for (const FormChecker::Need& need : checked.needs) {
        const RoleSet roles(need.selector);
        const auto serves = [&](const NodeImpl* node) { return hasNeededSubpart(node, need, roles); };
        if (std::none_of(nodes.begin(), nodes.end(), serves))
            return refuse(name, {formFault(tr("what is selected has no subpart \"%1\" with the property \"%2\"")
                                               .arg(need.selector.left(60), need.key.left(60)),
                                           &prototype)});
    }
    std::unique_ptr<QWidget> form(loadUIFromResource(resource, nullptr));
    // Whatever the toolkit has against it: what is shown must have sections.
    if (!form || !FormFaultSection::hasSections(form.get()))
        return refuse(name, {formFault(tr("the toolkit cannot read the form, or makes no section of it directly in "
                                          "its top widget"),
                                       nullptr)});
    return form;
}

const FormGate::Checked& FormGate::check(const QString& name, const QByteArray& form, const NodePrototype& prototype,
                                         const NodeDb& classes)
{
    if (m_classes != &classes) {
        m_checked.clear();
        m_classes = &classes;
    }
    Checked& checked = m_checked[std::pair(name, prototype.cid)];
    if (!checked.form.isNull() && checked.form == form)
        return checked;
    const FormChecker checker(form);
    checked = Checked();
    checked.form = form.isNull() ? QByteArray("") : form;
    if (checked.form.size() > FormDescription::maximumSize)
        checked.form.squeeze();
    checked.findings = checker.findings();
    std::vector<FormFinding> ofClass = checker.check(prototype, classes, &checked.needs);
    checked.findings.insert(checked.findings.end(), ofClass.begin(), ofClass.end());
    return checked;
}

std::unique_ptr<QWidget> FormGate::refuse(const QString& name, std::vector<FormFinding> findings)
{
    // Errors first, each by line: the pane has room for some of them only.
    std::stable_sort(findings.begin(), findings.end(), [](const FormFinding& a, const FormFinding& b) {
        return std::pair(a.severity != FormFinding::Error, a.line) <
               std::pair(b.severity != FormFinding::Error, b.line);
    });
    const QString file = name + QStringLiteral(".ui");
    QString text;
    for (const FormFinding& finding : findings)
        text += QLatin1Char('\n') + finding.message(file);
    if (!m_logged.contains(text) && m_logged.size() < keptLogs) {
        m_logged.insert(text);
        qWarning("FormGate: the form %s is not shown:%s", qPrintable(name), qPrintable(text));
    }
    return std::make_unique<FormFaultSection>(name, findings);
}
