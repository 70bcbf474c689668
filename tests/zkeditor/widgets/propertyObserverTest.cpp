#include "zkeditor/widgets/propertyObserver.h"

#include "observerFixture.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/proxyCommands.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/model/role.h"
#include "zkcore/services/productPackage.h"
#include "zkcore/values/validator.h"
#include "zkeditor/widgets/poReceiver.h"

#include <QMetaMethod>
#include <memory>

namespace {

class PropertyObserverTest : public ObserverTest
{
};

using PropertyObserverDeathTest = PropertyObserverTest;

/// Runs something whenever a value is shown.
class HookedObserver : public ProbeObserver
{
public:
    using ProbeObserver::ProbeObserver;
    std::function<void()> hook;

protected:
    void onPropertyValueChanged(Property property, Value value) override
    {
        ProbeObserver::onPropertyValueChanged(property, value);
        if (hook)
            hook();
    }
};

} // namespace

TEST_F(PropertyObserverTest, PartWithoutThePropertyIsAWarningAndTheOtherIsEdited)
{
    PartImpl* lamp = add("testpackage/lamp");
    PartImpl* bare = add("testpackage/bare");
    ProbeObserver probe("on");
    const MessageCapture messages;
    probe.bind(&document, {lamp, bare});
    EXPECT_EQ(messages.texts(),
              QStringList("PropertyObserver(probe): Part (testpackage/bare) does not have property \"on\""));
    probe.write(boolean(true));
    EXPECT_TRUE(isOn(lamp));
}

TEST_F(PropertyObserverTest, PropertyOfAnotherTypeIsLeftOut)
{
    PartImpl* lamp = add("testpackage/lamp");
    PartImpl* odd = add("testpackage/odd");
    ProbeObserver probe("on", Value::BOOL);
    const MessageCapture messages;
    probe.bind(&document, {lamp, odd});
    EXPECT_EQ(messages.texts(),
              QStringList("PropertyObserver: Building a probe with properties of in-consistent types"));
    EXPECT_EQ(probe.values(), std::vector{boolean(false)});

    ProbeObserver untyped("on");
    untyped.bind(&document, {odd});
    EXPECT_EQ(untyped.valueType(), Value::STRING);
    untyped.unbind();
    EXPECT_EQ(untyped.valueType(), Value::STRING); // fixed for good by the first
}

TEST_F(PropertyObserverTest, WithoutSupportForSeveralNodesNothingIsBound)
{
    PartImpl* first = add("testpackage/lamp");
    PartImpl* second = add("testpackage/lamp");
    ProbeObserver probe("on");
    probe.setSupportsMultipleProps(false);
    probe.bind(&document, {first, second});
    EXPECT_FALSE(probe.isEnabled());
    EXPECT_EQ(probe.boundCount(), 0u);
    probe.bind(&document, {second});
    EXPECT_TRUE(probe.isEnabled());
    EXPECT_EQ(probe.boundCount(), 1u);
}

TEST_F(PropertyObserverTest, WritesOneStepForAllAndNoneWhereNothingChanges)
{
    const auto parts = add("testpackage/lamp", 3);
    ASSERT_TRUE(set(property(parts[1], "on"), boolean(true)));
    ProbeObserver probe("on");
    probe.bind(&document, nodesOf(parts));
    const int before = undoSteps();
    EXPECT_EQ(probe.text(), QString("mixed"));

    probe.write(boolean(true));
    EXPECT_EQ(undoSteps(), before + 1);
    EXPECT_EQ(probe.values(), std::vector(3, boolean(true)));
    EXPECT_EQ(probe.text(), QString("true"));

    probe.write(boolean(true));
    EXPECT_EQ(undoSteps(), before + 1);

    document.undo();
    EXPECT_FALSE(isOn(parts[0]));
    EXPECT_TRUE(isOn(parts[1]));
    EXPECT_EQ(probe.text(), QString("mixed"));

    probe.setPushUndoOnSetProperty(false); // joins the step on top
    document.redo();
    probe.write(boolean(false));
    EXPECT_EQ(undoSteps(), before + 1);
}

TEST_F(PropertyObserverTest, FailedCommandShowsTheModelAgain)
{
    PartImpl* lamp = add("testpackage/lamp");
    ProbeObserver probe("sum"); // computed: no command can set it
    probe.bind(&document, {lamp});
    probe.setText("true");
    probe.write(boolean(true));
    EXPECT_EQ(probe.text(), QString("false"));
}

TEST_F(PropertyObserverTest, SubpartsAreSelectedByRoleOrByClass)
{
    PartImpl* first = add("testpackage/switch");
    PartImpl* second = add("testpackage/switch");
    PartImpl* lamp = add("testpackage/lamp");
    const Nodes nodes{first, second, lamp};
    for (const auto& [selector, cid, count] :
         {std::tuple("controls", "testpackage/knob", 2u), std::tuple("pads controls", "", 4u),
          std::tuple("testpackage/pad", "testpackage/pad", 2u), std::tuple("testpackage/lamp", "", 0u)}) {
        ProbeObserver probe("on");
        probe.setSubpartId(selector);
        Nodes found;
        probe.getMatchingSubparts(nodes, found);
        EXPECT_EQ(found.size(), count) << selector;
        for (const NodeImpl* node : found) {
            if (*cid) {
                EXPECT_EQ(node->classId(), getCidForString(cid));
            }
        }
        if (count > 0) {
            probe.bind(&document, nodes);
            EXPECT_EQ(probe.boundCount(), count);
        }
    }
}

TEST_F(PropertyObserverTest, SpacesGiveTheirDomainsPropertiesOrTheirOwn)
{
    SceneImpl* scene = firstScene(document);
    ProbeObserver ofDomain("running");
    ofDomain.setSpacePropertyCid(getCidForString("testpackage/*"));
    ofDomain.bind(&document, {scene});
    ofDomain.write(boolean(true));
    EXPECT_EQ(scene->valueOfProperty(PropertyKey::fromString("running"), getCidForString("testpackage/*")),
              boolean(true));

    ProbeObserver own("title");
    own.setSpacePropertyCid(getCidForString("core/scene"));
    own.bind(&document, {scene});
    own.write(string("Kitchen"));
    EXPECT_EQ(text(scene, "title"), QString("Kitchen"));
}

TEST_F(PropertyObserverTest, FollowsStateAndNeverShowsAgainWhatWasHidden)
{
    const auto parts = add("testpackage/lamp", 2);
    QWidget window;
    auto* probe = new ProbeObserver("on");
    probe->setParent(&window);
    probe->bind(&document, nodesOf(parts));
    window.show();
    ASSERT_TRUE(probe->isVisible());

    property(parts[1], "on")->setReadOnly(true);
    EXPECT_FALSE(probe->isEnabled());
    EXPECT_FALSE(probe->isPropertyWriteable());
    property(parts[1], "on")->setReadOnly(false);
    EXPECT_TRUE(probe->isEnabled());

    run<SetUILockedCommand>(document, std::vector{Node(parts[0]), Node(parts[1])}, LockPropertyValues, true);
    EXPECT_FALSE(probe->isEnabled());
    run<SetUILockedCommand>(document, std::vector{Node(parts[0])}, LockPropertyValues, false);
    EXPECT_FALSE(probe->isEnabled());
    document.undo();
    document.undo();
    EXPECT_TRUE(probe->isEnabled());

    property(parts[1], "on")->setUIHidden(true);
    EXPECT_TRUE(probe->isHidden());
    property(parts[1], "on")->setUIHidden(false);
    EXPECT_TRUE(probe->isHidden());
}

TEST_F(PropertyObserverTest, BecomingAProxyDisablesAndDetachingEnables)
{
    PartImpl* lamp = add("testpackage/lamp");
    PartImpl* other = add("testpackage/lamp");
    ProbeObserver probe("follower");
    probe.bind(&document, {lamp});
    run<SetProxyCommand>(document, Property(property(lamp, "follower")), Property(property(other, "on")));
    EXPECT_FALSE(probe.isEnabled());
    EXPECT_TRUE(set(property(other, "on"), boolean(true)));
    EXPECT_EQ(probe.text(), QString("true"));
    run<DetachProxyCommand>(document, Property(property(lamp, "follower")), true);
    EXPECT_TRUE(probe.isEnabled());
}

// The test remembers where it found a difference; it must forget when anything that was seen changes.
TEST_F(PropertyObserverTest, MixedValuesAreFoundWhicheverPropertyChanges)
{
    const auto parts = add("testpackage/lamp", 5);
    ProbeObserver probe("on");
    probe.bind(&document, nodesOf(parts));
    for (const int changed : {4, 0, 2, 1, 3}) {
        PropertyImpl* on = property(parts[static_cast<size_t>(changed)], "on");
        ASSERT_TRUE(set(on, boolean(true)));
        EXPECT_EQ(probe.text(), QString("mixed"));
        ASSERT_TRUE(set(on, boolean(false)));
        EXPECT_EQ(probe.text(), QString("false"));
    }
    ASSERT_TRUE(set(property(parts[3], "on"), boolean(true)));
    run<DeleteNodeCommand>(document, Node(parts[3]), Command::PushUndo); // the only one that differed
    EXPECT_TRUE(probe.hasCompatibleValues());
    EXPECT_EQ(probe.boundCount(), 4u);
}

TEST_F(PropertyObserverTest, ValidatorsOfAllBoundPropertiesDecide)
{
    PartImpl* narrow = add("testpackage/switch"); // 0 to 10
    PartImpl* wide = add("testpackage/lamp");     // 0 to 100
    const MessageCapture messages;
    ProbeObserver probe("level");
    probe.bind(&document, {narrow, wide});
    EXPECT_TRUE(probe.validateValue(Value(10)));
    EXPECT_FALSE(probe.validateValue(Value(50)));
    EXPECT_TRUE(messages.isEmpty());

    EXPECT_FALSE(probe.validateValue(string("10")));
    EXPECT_EQ(messages.texts(),
              QStringList("probe: Value type (string) is in-compatible with this widget's type (int)"));

    // The validators differ; those of "depth" are two objects that say the same.
    MessageCapture fixups;
    const QString cannot = "PropertyObserver: Cannot fixup value, passing back unchanged value";
    EXPECT_EQ(probe.fixupValue(Value(50)), Value(50));
    EXPECT_EQ(fixups.texts(), QStringList(cannot));
    ProbeObserver same("depth");
    same.bind(&document, {narrow, wide});
    EXPECT_EQ(same.fixupValue(Value(50)), Value(5));
    EXPECT_EQ(fixups.texts(), QStringList(cannot));
    ProbeObserver none("free");
    none.bind(&document, {narrow});
    EXPECT_EQ(none.fixupValue(string("x")), string("x"));
    EXPECT_EQ(fixups.texts(), QStringList({cannot, cannot}));

    // A validator is asked no more when the last of its properties is gone.
    run<DeleteNodeCommand>(document, Node(narrow), Command::PushUndo);
    EXPECT_TRUE(probe.validateValue(Value(50)));
    EXPECT_EQ(probe.fixupValue(Value(500)), Value(100));
}

TEST_F(PropertyObserverTest, ValidatorChangeShowsTheValueOnceAndNotAfterTheLastPropertyWasDestroyed)
{
    const auto parts = add("testpackage/lamp", 3);
    auto* validator = dynamic_cast<IntValidator*>(property(parts[0], "level")->getValidator());
    ASSERT_TRUE(validator);
    ProbeObserver probe("level");
    probe.bind(&document, nodesOf(parts));
    probe.shown = 0;
    validator->setRange(0, 50);
    EXPECT_EQ(probe.shown, 1);

    run<DeleteNodeCommand>(document, std::vector<Node>(parts.begin(), parts.end()), Command::PushUndo);
    EXPECT_EQ(probe.boundCount(), 0u);
    validator->setRange(0, 100);
    EXPECT_EQ(probe.shown, 1);
    probe.write(Value(7)); // into nothing
    probe.unbind();
}

TEST_F(PropertyObserverTest, BindingAgainListensOnce)
{
    PartImpl* lamp = add("testpackage/lamp");
    ProbeObserver probe("level");
    for (int i = 0; i < 3; ++i)
        probe.bind(&document, {lamp});
    probe.shown = 0;
    ASSERT_TRUE(set(property(lamp, "level"), Value(9)));
    EXPECT_EQ(probe.shown, 1);
    probe.unbind();
    ASSERT_TRUE(set(property(lamp, "level"), Value(8)));
    EXPECT_EQ(probe.shown, 1);
}

TEST_F(PropertyObserverTest, InvalidTextIsRedAndTheWidgetsOwnPaletteComesBack)
{
    ProbeObserver plain("on");
    const QPalette before = plain.palette();
    plain.setDisplayValid(false);
    EXPECT_EQ(plain.palette().color(QPalette::Text), QColor(Qt::red));
    EXPECT_EQ(plain.palette().color(QPalette::WindowText), QColor(Qt::red));
    plain.setDisplayValid(true);
    EXPECT_EQ(plain.palette(), before);
    EXPECT_FALSE(plain.testAttribute(Qt::WA_SetPalette));

    ProbeObserver green("on");
    QPalette palette = green.palette();
    palette.setColor(QPalette::Text, Qt::green);
    green.setPalette(palette);
    green.setDisplayValid(false);
    green.setDisplayValid(true);
    EXPECT_EQ(green.palette().color(QPalette::Text), QColor(Qt::green));
}

TEST_F(PropertyObserverTest, NotificationsMayDeleteTheObserverOrItsNodes)
{
    PartImpl* lamp = add("testpackage/lamp");
    auto* victim = new HookedObserver("on");
    victim->bind(&document, {lamp});
    victim->hook = [victim] { delete victim; };
    victim->write(boolean(true)); // ends in the observer's own notification
    EXPECT_TRUE(isOn(lamp));

    auto* bound = new HookedObserver("on");
    bound->hook = [bound] { delete bound; };
    bound->bind(&document, {lamp});

    // One that is told first changes the value again: the next shows what holds, not what it is told.
    HookedObserver first("level");
    first.bind(&document, {lamp});
    first.hook = [&] {
        first.hook = nullptr;
        set(property(lamp, "level"), Value(1));
    };
    ProbeObserver second("level");
    second.bind(&document, {lamp});
    ASSERT_TRUE(set(property(lamp, "level"), Value(9)));
    EXPECT_EQ(second.text(), QString("1"));
}

TEST_F(PropertyObserverTest, ReceiverOffersItsFiveSlotsInOrder)
{
    const QMetaObject& meta = POReceiver::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods += QString::fromLatin1(meta.method(i).methodSignature());
    EXPECT_EQ(methods, QStringList({"onPropertyValueChanged(Property,Value)", "onProxyTargetChanged(Property)",
                                    "onStateChanged()", "onValidatorChanged()", "onPropertyDeleted(QObject*)"}));
}

TEST_F(PropertyObserverTest, EmptyKeyIsAWarningInOneProductOnly)
{
    PartImpl* lamp = add("testpackage/lamp");
    ProbeObserver probe("");
    const QString code = ProductPackage::instance().productCode();
    ProductPackage::instance().setProductCode("QX");
    const MessageCapture messages;
    probe.bind(&document, {lamp});
    EXPECT_EQ(messages.texts(), QStringList("PropertyObserver( probe ): trying to bind but m_modelProperty is NULL."));
    ProductPackage::instance().setProductCode(code);
    EXPECT_DEATH(probe.bind(&document, {lamp}), "ZK_ASSERT: Failed to find any properties with key  \\(in .*, line");
}

TEST_F(PropertyObserverDeathTest, BrokenInvariantsAreFatal)
{
    PartImpl* lamp = add("testpackage/lamp");
    PartImpl* bare = add("testpackage/bare");
    ProbeObserver probe("on");
    EXPECT_DEATH(probe.bind(nullptr, {lamp}), "ZK_ASSERT: \"document\" in ");
    EXPECT_DEATH(probe.bind(&document, {bare}), "ZK_ASSERT: Failed to find any properties with key on \\(in ");
    EXPECT_DEATH(probe.fixupValue(boolean(true)), "ZK_ASSERT: \"!m_props.empty\\(\\)\" in ");
    EXPECT_DEATH(POReceiver(nullptr), "ZK_ASSERT: \"m_po\" in ");
    probe.bind(&document, {lamp});
    EXPECT_DEATH(probe.write(Value(1)), "ZK_ASSERT: ");
    ProbeObserver space("on");
    space.setSpacePropertyCid(getCidForString("core/scene"));
    EXPECT_DEATH(space.bind(&document, {lamp}), "ZK_ASSERT: \"space\" in ");
}
