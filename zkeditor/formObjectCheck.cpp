#include "zkeditor/formObjectCheck.h"

#include "zkeditor/formClasses.h"
#include "zkeditor/formObservers.h"
#include "zkeditor/nearestWord.h"

#include <QFileInfo>
#include <QMetaProperty>
#include <QSet>
#include <algorithm>

namespace {

/// The kinds of values that the toolkit stores in a property of a type.
QStringList kindsForType(int type)
{
    switch (type) {
    case QMetaType::Bool:
        return {QStringLiteral("bool")};
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return {QStringLiteral("number"), QStringLiteral("double"),   QStringLiteral("float"),
                QStringLiteral("uInt"),   QStringLiteral("longLong"), QStringLiteral("uLongLong")};
    case QMetaType::QString:
    case QMetaType::QByteArray:
        return {QStringLiteral("string"), QStringLiteral("cstring")};
    case QMetaType::QStringList:
        return {QStringLiteral("stringlist")};
    case QMetaType::QUrl:
        return {QStringLiteral("url"), QStringLiteral("string")};
    case QMetaType::QKeySequence:
        return {QStringLiteral("string")};
    case QMetaType::QColor:
        return {QStringLiteral("color")};
    case QMetaType::QFont:
        return {QStringLiteral("font")};
    case QMetaType::QIcon:
        return {QStringLiteral("iconset")};
    case QMetaType::QPixmap:
        return {QStringLiteral("pixmap")};
    case QMetaType::QPalette:
        return {QStringLiteral("palette")};
    case QMetaType::QCursor:
        return {QStringLiteral("cursorShape"), QStringLiteral("cursor")};
    case QMetaType::QPoint:
        return {QStringLiteral("point")};
    case QMetaType::QSize:
        return {QStringLiteral("size")};
    case QMetaType::QRect:
        return {QStringLiteral("rect")};
    case QMetaType::QSizePolicy:
        return {QStringLiteral("sizepolicy")};
    case QMetaType::QLocale:
        return {QStringLiteral("locale")};
    case QMetaType::QDate:
        return {QStringLiteral("date"), QStringLiteral("datetime")};
    case QMetaType::QTime:
        return {QStringLiteral("time"), QStringLiteral("datetime")};
    case QMetaType::QDateTime:
        return {QStringLiteral("datetime")};
    default:
        return {}; // whatever it is, the toolkit converts it or leaves it out
    }
}

/// Properties that no class has, but that the toolkit understands in forms.
bool isFormOnlyProperty(const FormObject& object, const QString& name)
{
    static const QSet<QString> ofLayouts = {QStringLiteral("margin"),
                                            QStringLiteral("leftMargin"),
                                            QStringLiteral("topMargin"),
                                            QStringLiteral("rightMargin"),
                                            QStringLiteral("bottomMargin"),
                                            QStringLiteral("spacing"),
                                            QStringLiteral("horizontalSpacing"),
                                            QStringLiteral("verticalSpacing")};
    switch (object.kind) {
    case FormObject::Layout:
        return ofLayouts.contains(name);
    case FormObject::Spacer:
        return true;
    default:
        return object.className == QLatin1String("Line") && name == QLatin1String("orientation");
    }
}

/// Slots that end in the very signals of a button that may have led to them, each time.
bool isEndlessSlot(const QString& slot)
{
    return slot == QLatin1String("toggle()") || slot == QLatin1String("click()");
}

bool isAnsweredBy(const QString& signal)
{
    return signal.startsWith(QLatin1String("toggled(")) || signal.startsWith(QLatin1String("clicked(")) ||
           signal.startsWith(QLatin1String("stateChanged(")) || signal == QLatin1String("pressed()") ||
           signal == QLatin1String("released()");
}

QString quotedWord(const QString& word)
{
    return QLatin1Char('"') + word.simplified().left(60) + QLatin1Char('"');
}

} // namespace

std::vector<FormFinding> FormObjectCheck::run()
{
    collectNames(*m_form.top);
    for (const auto& other : m_form.others)
        collectNames(*other);
    checkSections();
    const bool isSection = formClasses::inherits(metaObjectOf(*m_form.top), "PaletteBoxSection");
    checkObject(*m_form.top, isSection);
    for (const auto& other : m_form.others)
        checkObject(*other, true);
    checkConnections();
    checkCircles();
    checkTabStops();
    return std::move(m_findings);
}

void FormObjectCheck::add(FormFinding::Severity severity, qint64 line, const QString& text)
{
    FormFinding finding;
    finding.severity = severity;
    finding.line = line;
    finding.text = text;
    m_findings.push_back(std::move(finding));
}

void FormObjectCheck::add(FormFinding::Severity severity, const FormObject& object, const QString& text)
{
    add(severity, object.line, text);
    m_findings.back().widget = object.name;
    m_findings.back().widgetClass = object.className;
}

void FormObjectCheck::add(FormFinding::Severity severity, const FormObject& object, const FormProperty& property,
                          const QString& text)
{
    add(severity, object, text);
    m_findings.back().line = property.line;
    m_findings.back().property = property.name;
}

const QMetaObject* FormObjectCheck::metaObjectOf(const FormObject& object)
{
    if (object.kind != FormObject::Widget)
        return formClasses::other(object.className);
    const auto known = m_classes.constFind(object.className);
    if (known != m_classes.cend())
        return *known;
    const QMetaObject* found = formClasses::widget(object.className);
    // As the toolkit does: an unknown class is made as the one that it refines.
    for (QString name = object.className; !found && m_form.customWidgets.contains(name);) {
        name = m_form.customWidgets.value(name);
        found = formClasses::widget(name);
    }
    m_classes.insert(object.className, found);
    return found;
}

/// Of the form's objects. Where nearly everything is wrong, guessing would take long and help nobody.
QString FormObjectCheck::nearestName(const QString& name) const
{
    return m_findings.size() < 20 ? nearestWord(name, m_byName.keys()) : QString();
}

void FormObjectCheck::collectNames(const FormObject& object)
{
    if (!object.name.isEmpty()) {
        const FormObject*& first = m_byName[object.name];
        if (first)
            add(FormFinding::Warning, object,
                tr("the name is taken by what begins in line %1: connections and buddies find only one of them")
                    .arg(first->line));
        else
            first = &object;
    }
    for (const auto& child : object.children)
        collectNames(*child);
}

/// Whoever shows a form lifts its sections out; what stands beside them is never seen.
void FormObjectCheck::checkSections()
{
    const FormObject& top = *m_form.top;
    const auto isSection = [this](const FormObject& object) {
        return formClasses::inherits(metaObjectOf(object), "PaletteBoxSection");
    };
    if (isSection(top))
        return;
    // These move what is in them into a page, a window or a viewport of their own.
    for (const char* holder :
         {"QTabWidget", "QToolBox", "QStackedWidget", "QAbstractScrollArea", "QMainWindow", "QDockWidget", "QWizard"}) {
        if (!formClasses::inherits(metaObjectOf(top), holder))
            continue;
        add(FormFinding::Error, top,
            tr("a widget of this class keeps what is in it to itself: the top widget of a form has to be a QWidget"));
        return;
    }
    bool any = false;
    const auto look = [&](const FormObject& parent, const auto& again) -> void {
        for (const auto& child : parent.children) {
            if (child->kind == FormObject::Layout)
                again(*child, again);
            else if (isSection(*child))
                any = true;
        }
    };
    look(top, look);
    if (!any)
        add(FormFinding::Error, top,
            tr("the form has no section: directly in its top widget there must be a PaletteBoxSection"));
}

void FormObjectCheck::checkObject(const FormObject& object, bool inSection)
{
    const QMetaObject* metaObject = checkClass(object);
    if (metaObject) {
        inSection = inSection || formClasses::inherits(metaObject, "PaletteBoxSection");
        if (!inSection && formObservers::bindingOf(metaObject) != formObservers::Binding::None)
            add(FormFinding::Warning, object, tr("it stands outside all sections and is never shown"));
        for (const FormProperty& property : object.properties)
            checkProperty(object, *metaObject, property);
        checkOnOffTexts(object, *metaObject);
    }
    for (const auto& child : object.children)
        checkObject(*child, inSection);
}

const QMetaObject* FormObjectCheck::checkClass(const FormObject& object)
{
    const QMetaObject* metaObject = metaObjectOf(object);
    if (object.kind == FormObject::Spacer)
        return nullptr;
    if (!metaObject) {
        const bool isLayout = object.kind == FormObject::Layout;
        const QStringList known = isLayout ? QStringList{QStringLiteral("QVBoxLayout"), QStringLiteral("QHBoxLayout"),
                                                         QStringLiteral("QGridLayout"), QStringLiteral("QFormLayout")}
                                           : formClasses::knownWidgets();
        const QString meant = nearestWord(object.className, known);
        add(FormFinding::Error, object,
            object.className.isEmpty() ? tr("the class is missing")
            : meant.isEmpty()          ? tr("there is no such class")
                                       : tr("there is no such class; did you mean %1?").arg(meant));
    } else if (object.kind == FormObject::Widget && !formClasses::widget(object.className)) {
        add(FormFinding::Warning, object,
            tr("there is no such class; a %1, which it refines, is shown in its place")
                .arg(QLatin1String(metaObject->className())));
    }
    return metaObject;
}

void FormObjectCheck::checkProperty(const FormObject& object, const QMetaObject& metaObject,
                                    const FormProperty& property)
{
    checkFiles(object, property);
    if (property.name == QLatin1String("buddy") && formClasses::inherits(&metaObject, "QLabel")) {
        checkBuddy(object, property);
        return;
    }
    if (isFormOnlyProperty(object, property.name))
        return;
    const int index = metaObject.indexOfProperty(property.name.toUtf8().constData());
    if (index >= 0) {
        checkValue(object, metaObject.property(index), property);
        return;
    }
    if (property.isDynamic)
        return;
    QStringList known;
    for (int i = 0; i < metaObject.propertyCount(); ++i)
        known.append(QLatin1String(metaObject.property(i).name()));
    const QString meant = nearestWord(property.name, known);
    add(FormFinding::Warning, object, property,
        meant.isEmpty() ? tr("the class has no such property")
                        : tr("the class has no such property; did you mean \"%1\"?").arg(meant));
}

void FormObjectCheck::checkValue(const FormObject& object, const QMetaProperty& known, const FormProperty& property)
{
    if (known.isEnumType()) {
        checkEnum(object, known, property);
        return;
    }
    const QStringList kinds = kindsForType(known.typeId());
    if (kinds.isEmpty())
        return;
    const QString given = property.kind.left(60);
    if (property.kind.isEmpty()) {
        add(FormFinding::Error, object, property, tr("there is no value; <%1> is needed").arg(kinds.constFirst()));
    } else if (!kinds.contains(property.kind)) {
        add(FormFinding::Error, object, property,
            tr("<%1> is given where <%2> is needed").arg(given, kinds.constFirst()));
    } else if (kinds.constFirst() == QLatin1String("number")) {
        bool isNumber = false;
        property.text.trimmed().toDouble(&isNumber);
        if (!isNumber)
            add(FormFinding::Error, object, property, tr("%1 is no number").arg(quotedWord(property.text)));
        else if (property.name == QLatin1String("rowCount") || property.name == QLatin1String("columnCount")) {
            if (property.text.toDouble() > FormDescription::maximumGrid)
                add(FormFinding::Error, object, property,
                    tr("at most %1 are possible").arg(FormDescription::maximumGrid));
        }
    } else if (property.kind == QLatin1String("bool")) {
        const QString word = property.text.trimmed();
        if (word != QLatin1String("true") && word != QLatin1String("false"))
            add(FormFinding::Error, object, property,
                tr("%1 is neither \"true\" nor \"false\"").arg(quotedWord(property.text)));
    }
}

void FormObjectCheck::checkEnum(const FormObject& object, const QMetaProperty& known, const FormProperty& property)
{
    if (property.kind == QLatin1String("number"))
        return;
    const QString needed = known.isFlagType() ? QStringLiteral("set") : QStringLiteral("enum");
    if (property.kind != QLatin1String("enum") && property.kind != QLatin1String("set")) {
        add(FormFinding::Error, object, property,
            property.kind.isEmpty() ? tr("there is no value; <%1> is needed").arg(needed)
                                    : tr("<%1> is given where <%2> is needed").arg(property.kind.left(60), needed));
        return;
    }
    QStringList words;
    for (int i = 0; i < known.enumerator().keyCount(); ++i)
        words.append(QLatin1String(known.enumerator().key(i)));
    for (const QString& word : property.text.split(QLatin1Char('|'))) {
        const QString key = word.trimmed().section(QLatin1String("::"), -1);
        if (key.isEmpty() && known.isFlagType())
            continue;
        if (!words.contains(key)) {
            add(FormFinding::Error, object, property,
                tr("%1 is none of %2").arg(quotedWord(word), words.mid(0, 12).join(QStringLiteral(", "))));
            return;
        }
    }
}

void FormObjectCheck::checkFiles(const FormObject& object, const FormProperty& property)
{
    for (const QString& file : property.files) {
        const QFileInfo info(file);
        if (!file.startsWith(QLatin1Char(':')))
            // A device or a pipe would keep the program waiting for ever.
            add(info.exists() && !info.isFile() ? FormFinding::Error : FormFinding::Warning, object, property,
                tr("the picture %1 is no resource of the program: whether it is found depends on the folder in which "
                   "the program is started")
                    .arg(quotedWord(file)));
        else if (!info.isFile())
            add(FormFinding::Warning, object, property, tr("there is no picture %1").arg(quotedWord(file)));
    }
}

void FormObjectCheck::checkBuddy(const FormObject& object, const FormProperty& property)
{
    const QString name = property.text.trimmed();
    const FormObject* buddy = m_byName.value(name);
    if (buddy && buddy->kind == FormObject::Widget)
        return;
    const QString meant = nearestName(name);
    add(FormFinding::Warning, object, property,
        meant.isEmpty() ? tr("there is no widget %1").arg(quotedWord(name))
                        : tr("there is no widget %1; did you mean \"%2\"?").arg(quotedWord(name), meant));
}

void FormObjectCheck::checkOnOffTexts(const FormObject& object, const QMetaObject& metaObject)
{
    const bool isBox = formClasses::inherits(&metaObject, "ObserverStringCheckBox");
    const bool isButton = formClasses::inherits(&metaObject, "ObserverButton") &&
                          formObservers::typesOf(&metaObject, object) == QList<Value::Type>{Value::STRING};
    if (!isBox && !isButton)
        return;
    for (const char* name : {"onValue", "offValue"}) {
        if (!object.text(name).isEmpty())
            continue;
        add(FormFinding::Error, object, tr("the text is missing: a control over two texts needs both, not empty"));
        m_findings.back().property = QLatin1String(name);
    }
}

void FormObjectCheck::checkConnections()
{
    for (const FormConnection& connection : m_form.connections) {
        checkEnd(connection, connection.sender, connection.signal, true);
        checkEnd(connection, connection.receiver, connection.slot, false);
        const QByteArray signal = QMetaObject::normalizedSignature(connection.signal.toUtf8().constData());
        const QByteArray slot = QMetaObject::normalizedSignature(connection.slot.toUtf8().constData());
        if (!QMetaObject::checkConnectArgs(signal.constData(), slot.constData()))
            add(FormFinding::Warning, connection.line,
                tr("the signal %1 does not bring what the slot %2 takes")
                    .arg(quotedWord(connection.signal), quotedWord(connection.slot)));
    }
}

void FormObjectCheck::checkEnd(const FormConnection& connection, const QString& name, const QString& method,
                               bool isSignal)
{
    const FormObject* object = m_byName.value(name);
    if (!object) {
        const QString meant = nearestName(name);
        add(FormFinding::Warning, connection.line,
            meant.isEmpty() ? tr("the connection leads nowhere: there is no widget %1").arg(quotedWord(name))
                            : tr("the connection leads nowhere: there is no widget %1; did you mean \"%2\"?")
                                  .arg(quotedWord(name), meant));
        return;
    }
    const QMetaObject* metaObject = metaObjectOf(*object);
    if (!metaObject)
        return;
    const QByteArray signature = QMetaObject::normalizedSignature(method.toUtf8().constData());
    // The toolkit connects a signal to a signal as well.
    const bool known = isSignal ? metaObject->indexOfSignal(signature.constData()) >= 0
                                : metaObject->indexOfMethod(signature.constData()) >= 0;
    if (known)
        return;
    add(FormFinding::Warning, *object,
        isSignal ? tr("the connection leads nowhere: the class has no signal %1").arg(quotedWord(method))
                 : tr("the connection leads nowhere: the class has no slot %1").arg(quotedWord(method)));
    m_findings.back().line = connection.line;
}

/// Buttons that switch one another, and so themselves, never come to an end.
void FormObjectCheck::checkCircles()
{
    QHash<QString, std::vector<const FormConnection*>> from;
    for (const FormConnection& connection : m_form.connections) {
        if (isEndlessSlot(connection.slot) && isAnsweredBy(connection.signal))
            from[connection.sender].push_back(&connection);
    }
    // What is finished led to no circle; what is begun and met again is one.
    QHash<QString, bool> finished;
    struct Step
    {
        QString name;
        size_t next = 0;
    };
    for (const FormConnection& start : m_form.connections) {
        std::vector<Step> path;
        if (!finished.contains(start.sender)) {
            finished.insert(start.sender, false);
            path.push_back({start.sender});
        }
        while (!path.empty()) {
            const auto edges = from.constFind(path.back().name);
            if (edges == from.cend() || path.back().next == edges->size()) {
                finished[path.back().name] = true;
                path.pop_back();
                continue;
            }
            const FormConnection* edge = (*edges)[path.back().next++];
            const auto met = finished.constFind(edge->receiver);
            if (met == finished.cend()) {
                finished.insert(edge->receiver, false);
                path.push_back({edge->receiver});
            } else if (!*met) {
                add(FormFinding::Error, edge->line,
                    tr("the connection closes a circle: %1 would switch itself for ever")
                        .arg(quotedWord(edge->receiver)));
            }
        }
    }
}

void FormObjectCheck::checkTabStops()
{
    for (const auto& [name, line] : m_form.tabStops) {
        if (!m_byName.contains(name))
            add(FormFinding::Warning, line,
                tr("the tab order names %1, but there is no such widget").arg(quotedWord(name)));
    }
}
