#pragma once

#include "zkeditor/formDescription.h"
#include "zkeditor/formFinding.h"

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <vector>

struct QMetaObject;
class QMetaProperty;

/// Checks what a form says about its widgets against what their classes know, whatever the form edits.
class FormObjectCheck
{
    Q_DECLARE_TR_FUNCTIONS(FormChecker)

public:
    explicit FormObjectCheck(const FormDescription& form) : m_form(form) {}

    std::vector<FormFinding> run();

private:
    void collectNames(const FormObject& object);
    void checkSections();
    void checkObject(const FormObject& object, bool inSection);
    const QMetaObject* checkClass(const FormObject& object);
    void checkProperty(const FormObject& object, const QMetaObject& metaObject, const FormProperty& property);
    void checkValue(const FormObject& object, const QMetaProperty& known, const FormProperty& property);
    void checkEnum(const FormObject& object, const QMetaProperty& known, const FormProperty& property);
    void checkFiles(const FormObject& object, const FormProperty& property);
    void checkBuddy(const FormObject& object, const FormProperty& property);
    void checkOnOffTexts(const FormObject& object, const QMetaObject& metaObject);
    void checkConnections();
    void checkEnd(const FormConnection& connection, const QString& name, const QString& method, bool isSignal);
    void checkCircles();
    void checkTabStops();

    void add(FormFinding::Severity severity, qint64 line, const QString& text);
    void add(FormFinding::Severity severity, const FormObject& object, const QString& text);
    void add(FormFinding::Severity severity, const FormObject& object, const FormProperty& property,
             const QString& text);
    QString nearestName(const QString& name) const;
    const QMetaObject* metaObjectOf(const FormObject& object);

    const FormDescription& m_form;
    std::vector<FormFinding> m_findings;
    QHash<QString, const FormObject*> m_byName;
    QHash<QString, const QMetaObject*> m_classes;
};
