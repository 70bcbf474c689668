#include "tests/support/brokenForms.h"

#include <QDir>
#include <QFile>
#include <algorithm>

namespace {

/// Puts the content into a section, from line 2 on.
QByteArray inSection(const QByteArray& content, const QByteArray& behind = {})
{
    return "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\"><layout class=\"QVBoxLayout\"><item>"
           "<widget class=\"PaletteBoxSection\" name=\"section\"><layout class=\"QVBoxLayout\">\n" +
           content + "\n</layout></widget></item></layout></widget>" + behind + "</ui>\n";
}

QByteArray stringProperty(const char* name, const char* text)
{
    return QByteArray("<property name=\"") + name + "\"><string>" + text + "</string></property>";
}

QByteArray widget(const char* className, const char* name, const QByteArray& content = {})
{
    return QByteArray("<item><widget class=\"") + className + "\" name=\"" + name + "\">" + content +
           "</widget></item>\n";
}

QByteArray observer(const char* className, const char* key, const QByteArray& more = {})
{
    return widget(className, "control", stringProperty("modelProperty", key) + more);
}

QByteArray property(const char* name, const QByteArray& value)
{
    return QByteArray("<property name=\"") + name + "\">" + value + "</property>";
}

QByteArray connection(const char* sender, const char* signal, const char* receiver, const char* slot)
{
    return QByteArray("<connection><sender>") + sender + "</sender><signal>" + signal + "</signal><receiver>" +
           receiver + "</receiver><slot>" + slot + "</slot></connection>\n";
}

QByteArray utf16(const QByteArray& text)
{
    const QString string = QString::fromUtf8(text);
    QByteArray bytes("\xff\xfe", 2);
    for (const QChar c : string) {
        bytes += static_cast<char>(c.unicode() & 0xff);
        bytes += static_cast<char>(c.unicode() >> 8);
    }
    return bytes;
}

std::vector<BrokenForm> makeBrokenForms()
{
    const QByteArray boxWithSource =
        "<item><widget class=\"ObserverGroupBox\" name=\"box\"><layout class=\"QVBoxLayout\">\n" +
        widget("SubpartComboBox", "source", stringProperty("subpart", "pins")) + "%1</layout></widget></item>";
    const auto inBox = [&](const QByteArray& content) {
        return inSection(QByteArray(boxWithSource).replace("%1", content));
    };
    return {
        // What the widgets are
        {"unknown-class",
         inSection(observer("ObserverSlyder", "amount")),
         {("unknown-class.ui:2: error: widget 'control' (ObserverSlyder): there is no such class; did you mean "
           "ObserverSlider?")}},
        {"refined-class",
         inSection(observer("FancyLabel", "amount"),
                   "<customwidgets><customwidget><class>FancyLabel</class><extends>QLabel</extends></customwidget>"
                   "</customwidgets>"),
         {("refined-class.ui:2: warning: widget 'control' (FancyLabel): there is no such class; a QLabel, which it "
           "refines, is shown in its place"),
          ("refined-class.ui:2: warning: widget 'control' (FancyLabel): property 'modelProperty': the class has no "
           "such "
           "property")}},
        {"refines-itself",
         inSection(widget("Loop", "control"),
                   "\n<customwidgets><customwidget><class>Loop</class>\n<extends>Loop</extends></customwidget>"
                   "</customwidgets>"),
         {"refines-itself.ui:5: error: the class \"Loop\" refines itself"}},
        {"no-section",
         ("<ui version=\"4.0\">\n<widget class=\"QWidget\" name=\"Form\"><widget class=\"QLabel\" name=\"a\"/></widget>"
          "</ui>"),
         {("no-section.ui:2: error: widget 'Form' (QWidget): the form has no section: directly in its top widget there "
           "must be a PaletteBoxSection")}},
        {"holding-top",
         ("<ui version=\"4.0\"><widget class=\"QTabWidget\" name=\"Form\"><widget class=\"PaletteBoxSection\" "
          "name=\"s\"/></widget></ui>"),
         {("holding-top.ui:1: error: widget 'Form' (QTabWidget): a widget of this class keeps what is in it to itself: "
           "the top widget of a form has to be a QWidget")}},
        // What they are given
        {"wrong-kinds",
         inSection(widget("ObserverCheckBox", "control",
                          property("modelProperty", "<number>5</number>") + "\n" +
                              property("invertModelValue", "<bool>maybe</bool>") + "\n" +
                              property("minimumWidth", "<number>wide</number>") + "\n" + property("text", ""))),
         {("wrong-kinds.ui:2: error: widget 'control' (ObserverCheckBox): property 'modelProperty': <number> is given "
           "where <string> is needed"),
          ("wrong-kinds.ui:2: error: widget 'control' (ObserverCheckBox): property 'modelProperty': there is no "
           "property "
           "\"5\" to bind [broken/wrong-kinds]"),
          ("wrong-kinds.ui:3: error: widget 'control' (ObserverCheckBox): property 'invertModelValue': \"maybe\" is "
           "neither \"true\" nor \"false\""),
          ("wrong-kinds.ui:4: error: widget 'control' (ObserverCheckBox): property 'minimumWidth': \"wide\" is no "
           "number"),
          ("wrong-kinds.ui:5: error: widget 'control' (ObserverCheckBox): property 'text': there is no value; <string> "
           "is "
           "needed")}},
        {"wrong-mode",
         inSection(observer("ObserverButton", "flag", property("mode", "<enum>ObserverButton::TEXT</enum>"))),
         {("wrong-mode.ui:2: error: widget 'control' (ObserverButton): property 'mode': \"ObserverButton::TEXT\" is "
           "none "
           "of BOOLEAN, STRING")}},
        {"no-such-property",
         inSection(observer("ObserverSpinBox", "amount", stringProperty("linestep", "1"))),
         {("no-such-property.ui:2: warning: widget 'control' (ObserverSpinBox): property 'linestep': the class has no "
           "such property; did you mean \"lineStep\"?")}},
        {"on-without-off",
         inSection(observer("ObserverStringCheckBox", "note", stringProperty("onValue", "on"))),
         {("on-without-off.ui:2: error: widget 'control' (ObserverStringCheckBox): property 'offValue': the text is "
           "missing: a control over two texts needs both, not empty")}},
        {"pictures",
         inSection(widget("QLabel", "a", property("pixmap", "<pixmap>:/no/such.png</pixmap>")) +
                   widget("QLabel", "b", property("pixmap", "<pixmap>/dev/zero</pixmap>"))),
         {"pictures.ui:2: warning: widget 'a' (QLabel): property 'pixmap': there is no picture \":/no/such.png\"",
          ("pictures.ui:3: error: widget 'b' (QLabel): property 'pixmap': the picture \"/dev/zero\" is no resource of "
           "the "
           "program: whether it is found depends on the folder in which the program is started")}},
        {"names",
         inSection(widget("QLabel", "twice") +
                       widget("QLabel", "twice", property("buddy", "<cstring>nobody</cstring>")),
                   "<tabstops><tabstop>nobody</tabstop></tabstops>"),
         {("names.ui:3: warning: widget 'twice' (QLabel): the name is taken by what begins in line 2: connections and "
           "buddies find only one of them"),
          "names.ui:3: warning: widget 'twice' (QLabel): property 'buddy': there is no widget \"nobody\"",
          "names.ui:5: warning: the tab order names \"nobody\", but there is no such widget"}},
        {"connections",
         inSection(observer("ObserverCheckBox", "flag"),
                   "<connections>\n" + connection("control", "toggled(bool)", "nobody", "hide()") +
                       connection("control", "toggeld(bool)", "section", "setEnabled(bool)") +
                       connection("control", "toggled(bool)", "section", "setOpen(int)") + "</connections>"),
         {"connections.ui:5: warning: the connection leads nowhere: there is no widget \"nobody\"",
          ("connections.ui:6: warning: widget 'control' (ObserverCheckBox): the connection leads nowhere: the class "
           "has "
           "no "
           "signal \"toggeld(bool)\""),
          ("connections.ui:7: warning: widget 'section' (PaletteBoxSection): the connection leads nowhere: the class "
           "has "
           "no slot \"setOpen(int)\""),
          ("connections.ui:7: warning: the signal \"toggled(bool)\" does not bring what the slot \"setOpen(int)\" "
           "takes")}},
        {"endless-switching",
         inSection(widget("ObserverCheckBox", "a", stringProperty("modelProperty", "flag")) + widget("QCheckBox", "b"),
                   "<connections>\n" + connection("a", "toggled(bool)", "b", "toggle()") +
                       connection("b", "toggled(bool)", "a", "click()") + "</connections>"),
         {"endless-switching.ui:7: error: the connection closes a circle: \"a\" would switch itself for ever"}},
        // What they are bound to
        {"unbound-key",
         inSection(observer("ObserverSpinBox", "amuont")),
         {("unbound-key.ui:2: error: widget 'control' (ObserverSpinBox): property 'modelProperty': there is no "
           "property "
           "\"amuont\" to bind; did you mean \"amount\"? [broken/unbound-key]")}},
        {"no-key",
         inSection(widget("ObserverLabel", "control")),
         {("no-key.ui:2: error: widget 'control' (ObserverLabel): property 'modelProperty': the key of the property to "
           "bind is missing [broken/no-key]")}},
        {"wrong-type",
         inSection(observer("ObserverSpinBox", "note") + observer("ObserverCheckBox", "amount") +
                   observer("ObserverButton", "flag",
                            property("mode", "<enum>ObserverButton::STRING</enum>") + stringProperty("onValue", "a") +
                                stringProperty("offValue", "b")) +
                   observer("ObserverLineEdit", "table")),
         {("wrong-type.ui:2: error: widget 'control' (ObserverSpinBox): property 'modelProperty': \"note\" is of the "
           "type "
           "string, but the control takes int, double [broken/wrong-type]"),
          ("wrong-type.ui:3: warning: widget 'control' (ObserverCheckBox): the name is taken by what begins in line 2: "
           "connections and buddies find only one of them"),
          ("wrong-type.ui:3: error: widget 'control' (ObserverCheckBox): property 'modelProperty': \"amount\" is of "
           "the "
           "type double, but the control takes bool [broken/wrong-type]"),
          ("wrong-type.ui:4: warning: widget 'control' (ObserverButton): the name is taken by what begins in line 2: "
           "connections and buddies find only one of them"),
          ("wrong-type.ui:4: error: widget 'control' (ObserverButton): property 'modelProperty': \"flag\" is of the "
           "type "
           "bool, but the control takes string [broken/wrong-type]"),
          ("wrong-type.ui:5: warning: widget 'control' (ObserverLineEdit): the name is taken by what begins in line 2: "
           "connections and buddies find only one of them"),
          ("wrong-type.ui:5: error: widget 'control' (ObserverLineEdit): property 'modelProperty': \"table\" is of the "
           "type value map, but the control takes int, double, point, bool, string, color, node, resource "
           "[broken/wrong-type]")}},
        {"nothing-to-choose",
         inSection(observer("ObserverComboBox", "note") +
                   widget("UnitChooser", "u", stringProperty("modelProperty", "count")) +
                   widget("ResourceDropdown", "r", stringProperty("modelProperty", "picture"))),
         {("nothing-to-choose.ui:2: warning: widget 'control' (ObserverComboBox): property 'modelProperty': the list "
           "stays "
           "empty: the property needs a validator of the kind \"set\" [broken/nothing-to-choose]"),
          ("nothing-to-choose.ui:3: warning: widget 'u' (UnitChooser): property 'modelProperty': no unit is shown: the "
           "property has neither a unit nor a format with units [broken/nothing-to-choose]"),
          ("nothing-to-choose.ui:4: warning: widget 'r' (ResourceDropdown): property 'modelProperty': the list stays "
           "empty: the property needs a validator of the kind \"resources\" [broken/nothing-to-choose]")}},
        {"wrong-choice",
         inSection("<item><widget class=\"ObserverRadioGroup\" name=\"group\">" +
                   stringProperty("modelProperty", "pace") + "<layout class=\"QVBoxLayout\">\n" +
                   widget("RadioButton", "fast", stringProperty("text", "&amp;Fast")) +
                   widget("RadioButton", "slow", stringProperty("value", "Sloow")) + "</layout></widget></item>"),
         {("wrong-choice.ui:4: warning: widget 'slow' (RadioButton): property 'value': the button stands for nothing "
           "in "
           "the group 'group': \"Sloow\" is no value that the property may take [broken/wrong-choice]")}},
        {"no-subparts",
         inSection(observer("ObserverLineEdit", "title", stringProperty("subpart", "wheels"))),
         {("no-subparts.ui:2: error: widget 'control' (ObserverLineEdit): property 'subpart': there are no subparts "
           "\"wheels\" to bind [broken/no-subparts]")}},
        {"lacking-subparts",
         inSection(observer("ObserverLineEdit", "title", stringProperty("subpart", "pads"))),
         {("lacking-subparts.ui:2: warning: widget 'control' (ObserverLineEdit): property 'subpart': new nodes have no "
           "subparts \"pads\": the form is not shown for them [broken/lacking-subparts]")},
         true},
        {"wrong-for-chosen",
         inBox(observer("ObserverSpinBox", "title")),
         {("wrong-for-chosen.ui:4: error: widget 'control' (ObserverSpinBox): property 'modelProperty': \"title\" is "
           "of "
           "the type string, but the control takes int, double [broken/wrong-for-chosen]")}},
        {"unbound-for-chosen",
         inBox("<item><widget class=\"ObserverGroupBox\" name=\"inner\"><layout class=\"QVBoxLayout\">\n" +
               observer("ObserverLabel", "amount") + "</layout></widget></item>"),
         {("unbound-for-chosen.ui:5: error: widget 'control' (ObserverLabel): property 'modelProperty': there is no "
           "property \"amount\" to bind [broken/unbound-for-chosen]")}},
        // What is no form at all
        {"empty", "", {"empty.ui:1: error: Premature end of document."}},
        {"garbage",
         QByteArray::fromHex("00ff13fe9c").repeated(200),
         {"garbage.ui:1: error: Encountered incorrectly encoded content."}},
        {"other-xml", "\n<html/>", {"other-xml.ui:2: error: this is no form but <html>"}},
        {"no-widget",
         "<ui version=\"4.0\"><class>Form</class></ui>",
         {"no-widget.ui:1: error: the form has no widget"}},
        {"two-tops",
         "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"a\"/>\n<widget class=\"QWidget\" name=\"b\"/></ui>",
         {"two-tops.ui:2: error: a form has one top widget, this is the second"}},
        {"old-form",
         "<ui version=\"3.1\"><widget class=\"QWidget\" name=\"a\"/></ui>",
         {"old-form.ui:1: error: the form has the version 3.1, 4.0 is needed"}},
        {"cut-off",
         inSection(observer("ObserverLabel", "amount")).left(200),
         {"cut-off.ui:2: error: Premature end of document."}},
        {"wide-characters", utf16(inSection(observer("ObserverLabel", "amount"))), {}},
        {"half-wide-characters",
         utf16(inSection(observer("ObserverLabel", "amount"))).left(201),
         {"half-wide-characters.ui:1: error: Premature end of document."}},
        {"entities",
         "<!DOCTYPE ui [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;\">]>\n" +
             inSection(widget("QLabel", "a", stringProperty("text", "&b;"))),
         {"entities.ui:1: error: document types and entities are not understood"}},
        {"deep",
         inSection(QByteArray("<item><widget class=\"QWidget\">\n<layout class=\"QVBoxLayout\">").repeated(10000) +
                   QByteArray("</layout></widget></item>").repeated(10000)),
         {"deep.ui:67: error: the elements are nested more than 200 deep"}},
        {"endless-text",
         inSection(widget("QLabel", "a", stringProperty("text", QByteArray(20 * 1024 * 1024, 'x').constData()))),
         {"endless-text.ui:1: error: the form is larger than 4 MB"}},
        {"crowd",
         inSection(QByteArray("<item><widget class=\"QLabel\"/></item>\n").repeated(3000)),
         {"crowd.ui:1998: error: the form has more than 2000 widgets, layouts and connections"}},
        {"endless-grid",
         inSection(
             "<item><layout class=\"QGridLayout\">\n<item row=\"2000000000\" column=\"0\"><widget class=\"QLabel\" "
             "name=\"a\"/></item></layout></item>"),
         {"endless-grid.ui:3: error: \"2000000000\" is no row of a grid; at most 1000 are possible"}},
        {"endless-letters",
         inSection(widget("QLabel", "a", property("font", "<font>\n<pointsize>2000000</pointsize></font>"))),
         {"endless-letters.ui:3: error: 2000000 is larger than anything that can be shown"}},
    };
}

bool write(const QString& name, const QByteArray& bytes)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

bool BrokenForm::isShown() const
{
    return !lacksSubparts && std::none_of(messages.begin(), messages.end(), [](const QString& message) {
        return message.contains(QLatin1String(": error: "));
    });
}

const std::vector<BrokenForm>& brokenForms()
{
    static const std::vector<BrokenForm> forms = makeBrokenForms();
    return forms;
}

QString writeBrokenForms(const QString& folder)
{
    const QDir dir(folder + QStringLiteral("/broken"));
    QByteArray xml = R"(<package format="1" name="broken" version="1" label="Broken">
  <class id="broken/part" base="core/part" kind="part" abstract="true" label="Part">
    <property key="amount" type="double" unit="V" default="2"/>
    <property key="count" type="int"/>
    <property key="flag" type="bool"/>
    <property key="note" type="string"/>
    <property key="picture" type="resource"/>
    <property key="table" type="value map"/>
    <property key="pace" type="string" default="Fast">
      <validator kind="set"><item>Fast</item><item>Slow</item></validator>
    </property>
    <subpart class="core/pin"/>
    <allow role="pads" max="2"><class>core/pad</class></allow>
  </class>
)";
    if (!dir.mkpath(QStringLiteral("forms")))
        return {};
    for (const BrokenForm& form : brokenForms()) {
        const QByteArray name = form.name;
        xml += "  <class id=\"broken/" + name + "\" base=\"broken/part\" label=\"" + name + "\"><form>broken/forms/" +
               name + "</form></class>\n";
        if (!write(dir.filePath(QStringLiteral("forms/") + QLatin1String(name) + QStringLiteral(".ui")), form.bytes))
            return {};
    }
    return write(dir.filePath(QStringLiteral("package.xml")), xml + "</package>\n") ? dir.path() : QString();
}
