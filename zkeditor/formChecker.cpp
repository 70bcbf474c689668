#include "zkeditor/formChecker.h"

#include "zkcore/base/propertyKey.h"
#include "zkcore/model/nodeDb.h"
#include "zkeditor/formBindingCheck.h"
#include "zkeditor/formObjectCheck.h"

#include <algorithm>

namespace {

/// Sorts by line and keeps the first ones; of more than can be kept, warnings go before errors do.
void tidyFindings(std::vector<FormFinding>& findings)
{
    constexpr auto most = static_cast<size_t>(FormChecker::maximumFindings);
    const auto isError = [](const FormFinding& finding) { return finding.severity == FormFinding::Error; };
    const auto byLine = [](const FormFinding& a, const FormFinding& b) { return a.line < b.line; };
    std::stable_sort(findings.begin(), findings.end(), byLine);
    if (findings.size() <= most)
        return;
    std::stable_partition(findings.begin(), findings.end(), isError);
    findings.resize(most);
    std::stable_sort(findings.begin(), findings.end(), byLine);
}

} // namespace

FormChecker::FormChecker(const QByteArray& form)
{
    FormFinding error;
    m_readable = m_form.read(form, error);
    if (m_readable)
        m_findings = FormObjectCheck(m_form).run();
    else
        m_findings.push_back(error);
    tidyFindings(m_findings);
}

FormChecker::~FormChecker() = default;

std::vector<FormFinding> FormChecker::check(const NodePrototype& prototype, const NodeDb& classes,
                                            std::vector<Need>* needs) const
{
    if (!m_readable)
        return {};
    FormBindingCheck check(m_form, prototype, classes);
    std::vector<FormFinding> findings = check.run();
    tidyFindings(findings);
    if (needs)
        needs->insert(needs->end(), check.needs().begin(), check.needs().end());
    return findings;
}

std::vector<FormFinding> FormChecker::checkAll(const std::vector<const NodePrototype*>& prototypes,
                                               const NodeDb& classes) const
{
    std::vector<FormFinding> all = m_findings;
    for (const NodePrototype* prototype : prototypes) {
        for (FormFinding& finding : check(*prototype, classes)) {
            const auto same = [&finding](const FormFinding& other) {
                return !other.classes.isEmpty() && other.line == finding.line && other.widget == finding.widget &&
                       other.property == finding.property && other.text == finding.text;
            };
            const auto known = std::find_if(all.begin(), all.end(), same);
            if (known != all.end())
                known->classes += finding.classes;
            else
                all.push_back(std::move(finding));
        }
    }
    tidyFindings(all);
    return all;
}

bool FormChecker::hasErrors(const std::vector<FormFinding>& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](const FormFinding& finding) { return finding.severity == FormFinding::Error; });
}

std::vector<const NodePrototype*> FormChecker::classesThatShow(const QString& form, const NodeDb& classes)
{
    static const PropertyKey forms = PropertyKey::fromString("meta-controlpane");
    std::vector<const NodePrototype*> found;
    for (const NodePrototype* prototype : classes.prototypes()) {
        const PropertyDefinition* named = prototype->abstract ? nullptr : prototype->find(forms);
        if (!named)
            continue;
        const std::vector<QString> names = named->defaultValue.toStringVector();
        if (std::find(names.begin(), names.end(), form) != names.end())
            found.push_back(prototype);
    }
    return found;
}
