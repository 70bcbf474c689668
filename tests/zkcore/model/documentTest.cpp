// Nodes, spaces, locks, ids, reflections and the selection of a document.
#include "tests/support/testDocument.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/reflectCommand.h"
#include "zkcore/commands/resourceCommand.h"
#include "zkcore/commands/setNodeIndexCommand.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/commands/viewCommands.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/idProvider.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/model/view.h"
#include "zkcore/storage/package.h"
#include "zkcore/values/formatter.h"
#include "zkcore/values/validator.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class DocumentTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(loadTestKit());
        m_document = std::make_unique<DocumentImpl>();
    }

    PropertyKey key(const char* text) { return PropertyKey::fromString(text); }

    std::unique_ptr<DocumentImpl> m_document;
};

class SlotCounter : public QObject
{
    Q_OBJECT

public:
    int count = 0;
public Q_SLOTS:
    void onSignal() { ++count; }
};

TEST_F(DocumentTest, aNewPartHasWhatItsClassPrescribes)
{
    PartImpl* lamp = addPart(*m_document, "testkit/lamp");
    EXPECT_EQ(lamp->valueOfProperty(key("id")), Value(QStringLiteral("lamp1")));
    EXPECT_EQ(addPart(*m_document, "testkit/lamp")->valueOfProperty(key("id")), Value(QStringLiteral("lamp2")));
    ASSERT_TRUE(lamp->popup());
    EXPECT_EQ(lamp->popup()->owner(), lamp);
    EXPECT_EQ(m_document->getModel()->getPopups().size(), 2u);
    EXPECT_EQ(lamp->popup()->classId(), getCidForString("core/popup"));
    EXPECT_EQ(lamp->getChildrenWithRole(RoleSet(QStringLiteral("pins, pads"))).size(), 1u);
    EXPECT_TRUE(lamp->getChildrenWithRole(RoleSet(QStringLiteral("controls"))).empty());
    EXPECT_FALSE(lamp->allSubparts().front()->isAdhoc());
    EXPECT_TRUE(lamp->instanceOf(getCidForString("core/part")));
    EXPECT_TRUE(lamp->instanceOf(getCidForString("testkit/*")));
    EXPECT_FALSE(lamp->instanceOf(getCidForString("testkit/box")));
    EXPECT_FALSE(lamp->hasProperty(key("no-such")));
    EXPECT_EQ(lamp->getProperty(key("no-such")), nullptr);
    EXPECT_FALSE(lamp->valueOfProperty(key("no-such")).isValid());
}

TEST_F(DocumentTest, valuesAreKeptOnlyWhereTheyDifferAndPropertyObjectsOnlyWhenAskedFor)
{
    PartImpl* box = addPart(*m_document, "testkit/box");
    EXPECT_EQ(box->existingProperty(key("length")), nullptr);
    EXPECT_EQ(box->valueOfProperty(key("length")), Value(0.02));
    PropertyImpl* length = property(box, "length");
    EXPECT_EQ(box->existingProperty(key("length")), length);
    set(length, Value(0.05));
    EXPECT_TRUE(box->hasOwnValue(key("length")));
    set(length, Value(0.02));
    EXPECT_FALSE(box->hasOwnValue(key("length")));
    // Every number has at least the range of its type.
    EXPECT_TRUE(property(box, "orientation")->getValidator());
    EXPECT_TRUE(property(box, "sum")->getValidator());
    EXPECT_EQ(length->debugName(), QStringLiteral("testkit/box[%1].length").arg(box->instanceId()));
}

TEST_F(DocumentTest, aUnitIsChosenForOnePropertyOnly)
{
    PropertyImpl* one = property(addPart(*m_document, "testkit/box"), "length");
    PropertyImpl* two = property(addPart(*m_document, "testkit/box"), "length");
    auto* formatter = dynamic_cast<NumericalFormatter*>(one->getFormatter());
    ASSERT_TRUE(formatter);
    QSignalSpy first(one, &PropertyImpl::formatterChanged);
    QSignalSpy second(two, &PropertyImpl::formatterChanged);
    ASSERT_TRUE(formatter->setCurrentUnit(Unit::fromText(QStringLiteral("cm"))));
    EXPECT_EQ(first.count(), 1);
    EXPECT_EQ(second.count(), 0);
    EXPECT_EQ(formatter->toText(Value(0.02)), QStringLiteral("2"));
    EXPECT_EQ(two->getFormatter()->toText(Value(0.02)), QStringLiteral("20"));
    EXPECT_FALSE(formatter->setCurrentUnit(Unit::fromText(QStringLiteral("kg"))));
}

TEST_F(DocumentTest, alwaysNotifyTellsAlsoOfTheSameValue)
{
    PartImpl* box = addPart(*m_document, "testkit/box");
    QSignalSpy pulse(property(box, "pulse"), &PropertyImpl::ValueChanged);
    QSignalSpy on(property(box, "on"), &PropertyImpl::ValueChanged);
    set(property(box, "pulse"), Value(false));
    set(property(box, "on"), Value(false));
    EXPECT_EQ(pulse.count(), 1);
    EXPECT_EQ(on.count(), 0);
}

TEST_F(DocumentTest, slotsAreConnectedByText)
{
    PropertyImpl* on = property(addPart(*m_document, "testkit/box"), "on");
    SlotCounter counter;
    const Property handle(on);
    EXPECT_TRUE(handle.connectValueChanged(&counter, SLOT(onSignal())));
    set(on, Value(true));
    EXPECT_TRUE(handle.disconnectValueChanged(&counter, SLOT(onSignal())));
    set(on, Value(false));
    EXPECT_EQ(counter.count, 1);
    ASSERT_TRUE(Model(m_document->getModel()).connectSceneRemoved(&counter, SLOT(onSignal())));
    ASSERT_TRUE(Model(m_document->getModel()).connectPopupRemoved(&counter, SLOT(onSignal())));
    PartImpl* lamp = addPart(*m_document, "testkit/lamp");
    run<DeleteNodeCommand>(*m_document, Node(lamp), Command::PushUndo);
    EXPECT_EQ(counter.count, 2);
    run<AddSceneCommand>(*m_document, Model(m_document->getModel()));
    m_document->undo();
    EXPECT_EQ(counter.count, 3);
}

TEST_F(DocumentTest, aSpaceHoldsThePropertiesOfDomains)
{
    SceneImpl* scene = firstScene(*m_document);
    const ClassId domain = getCidForString("testkit/*");
    EXPECT_EQ(scene->getProperty(key("speed")), nullptr);
    EXPECT_EQ(scene->getProperty(key("speed"), getCidForString("nowhere/*")), nullptr);
    PropertyImpl* speed = scene->getProperty(key("speed"), domain);
    ASSERT_TRUE(speed);
    const std::vector<ClassId> domains = scene->getKnownDomains();
    EXPECT_NE(std::find(domains.begin(), domains.end(), domain), domains.end());
    const std::vector<PropertyKey> keys = scene->getPropertyKeys(domain);
    EXPECT_NE(std::find(keys.begin(), keys.end(), key("step-pressed")), keys.end());
    EXPECT_EQ(std::find(keys.begin(), keys.end(), key("size")), keys.end()) << "the scene's own";
    const QByteArray before = bytesOf(*m_document);
    QSignalSpy changed(speed, &PropertyImpl::ValueChanged);
    ASSERT_TRUE(set(speed, Value(QStringLiteral("Fast"))));
    EXPECT_FALSE(set(speed, Value(QStringLiteral("Sideways"))));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(Space(scene).valueOfProperty(key("speed"), domain), Value(QStringLiteral("Fast")));
    EXPECT_NE(bytesOf(*m_document), before);
    ASSERT_TRUE(set(scene->getProperty(key("step-pressed"), domain), Value(true)));
    m_document->undo();
    EXPECT_EQ(bytesOf(*m_document), before);
    EXPECT_EQ(scene->valueOfProperty(key("step-pressed"), domain), Value(true)) << "transient";
}

TEST_F(DocumentTest, locksKeepTheUserFromEditing)
{
    PartImpl* box = addPart(*m_document, "testkit/box");
    PartImpl* other = addPart(*m_document, "testkit/box");
    PropertyImpl* position = property(box, "position");
    PropertyImpl* length = property(box, "length");
    PropertyImpl* turn = property(box->getChildAt(1), "turn");
    QSignalSpy positionEdit(position, &PropertyImpl::userCanEditChanged);
    QSignalSpy lengthEdit(length, &PropertyImpl::userCanEditChanged);
    QSignalSpy turnEdit(turn, &PropertyImpl::userCanEditChanged);
    QSignalSpy locked(box, &NodeImpl::LockedChanged);
    const QByteArray before = bytesOf(*m_document);

    const std::vector<Node> both{Node(box), Node(other)};
    run<SetUILockedCommand>(*m_document, both, LockPosition, true);
    EXPECT_FALSE(position->userCanEdit());
    EXPECT_TRUE(length->userCanEdit());
    EXPECT_EQ(positionEdit.count(), 1);
    EXPECT_EQ(lengthEdit.count(), 0);
    EXPECT_EQ(locked.count(), 1);

    run<SetUILockedCommand>(*m_document, both, LockPropertyValues, true);
    EXPECT_FALSE(length->userCanEdit());
    EXPECT_FALSE(turn->userCanEdit()) << "subparts are locked with their part";
    EXPECT_EQ(turnEdit.count(), 1);
    EXPECT_EQ(positionEdit.count(), 1) << "it could not be edited before";
    EXPECT_TRUE(box->isLocked(LockPropertyValues));
    EXPECT_FALSE(box->isLocked(LockSize));
    EXPECT_TRUE(box->isEffectivelyLocked(LockSize));

    m_document->undo();
    EXPECT_TRUE(length->userCanEdit());
    m_document->undo();
    EXPECT_TRUE(position->userCanEdit());
    EXPECT_EQ(bytesOf(*m_document), before);
}

TEST_F(DocumentTest, sizeAndOrientationAreEditedOnlyWhereTheKindAllowsIt)
{
    PartImpl* lamp = addPart(*m_document, "electronics/led"); // not resizeable, turned by right angles
    PartImpl* picture = addPart(*m_document, "core/picture");
    EXPECT_FALSE(property(lamp, "size")->userCanEdit());
    EXPECT_TRUE(property(lamp, "position")->userCanEdit());
    EXPECT_TRUE(property(picture, "size")->userCanEdit());

    PropertyImpl* orientation = property(lamp, "orientation");
    QSignalSpy edit(orientation, &PropertyImpl::userCanEditChanged);
    PropertyImpl* constraint = property(lamp, "orientation-constraint");
    EXPECT_TRUE(orientation->userCanEdit());
    ASSERT_TRUE(set(constraint, Value(QStringLiteral("free"))));
    EXPECT_EQ(edit.count(), 0);
    ASSERT_TRUE(set(constraint, Value(QStringLiteral("fixed"))));
    EXPECT_FALSE(orientation->userCanEdit());
    EXPECT_EQ(edit.count(), 1);
    m_document->undo();
    EXPECT_TRUE(orientation->userCanEdit());
    EXPECT_EQ(edit.count(), 2);
    // Users are kept from it; commands of the program are not.
    EXPECT_TRUE(set(property(lamp, "size"), Value(zk::Point{0.03, 0.03})));
}

TEST_F(DocumentTest, idsAreUniqueAndSuggested)
{
    PartImpl* one = addPart(*m_document, "testkit/box");
    PartImpl* two = addPart(*m_document, "testkit/box");
    const IdProvider provider(two);
    EXPECT_TRUE(provider.isRegistered());
    EXPECT_EQ(provider.id(), QStringLiteral("box2"));
    EXPECT_TRUE(provider.isValidId(QStringLiteral("box2")));
    EXPECT_FALSE(provider.isValidId(QStringLiteral("box1")));
    EXPECT_FALSE(provider.isValidId(QString()));
    EXPECT_FALSE(provider.isValidId(QStringLiteral("a b")));
    EXPECT_FALSE(provider.isValidId(QString(101, QLatin1Char('x'))));
    EXPECT_EQ(provider.suggestion(QStringLiteral("my box")), QStringLiteral("mybox"));
    EXPECT_EQ(provider.suggestion(QStringLiteral("box1")), QStringLiteral("box3"));
    ASSERT_TRUE(set(property(one, "id"), Value(QStringLiteral("first"))));
    EXPECT_EQ(m_document->nodeWithId(QStringLiteral("first")), one);
    EXPECT_EQ(m_document->nodeWithId(QStringLiteral("box1")), nullptr);
    m_document->undo();
    EXPECT_EQ(m_document->nodeWithId(QStringLiteral("box1")), one);
    EXPECT_EQ(m_document->nodeWithId(QStringLiteral("first")), nullptr);
    EXPECT_TRUE(set(property(one->getChildAt(0), "id"), Value(QStringLiteral("right"))));
    EXPECT_FALSE(set(property(one->getChildAt(0), "id"), Value(QStringLiteral("knob")))) << "its sibling's";
}

TEST_F(DocumentTest, subpartsAreAddedAsTheClassAllows)
{
    PartImpl* box = addPart(*m_document, "testkit/box");
    const ClassId pin = getCidForString("testkit/pin");
    EXPECT_FALSE(run<AddSubpartCommand>(*m_document, Node(box), getCidForString("testkit/knob")).isValid());
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(run<AddSubpartCommand>(*m_document, Node(box), pin).isValid());
    EXPECT_FALSE(run<AddSubpartCommand>(*m_document, Node(box), pin).isValid()) << "four at the most";
    const QByteArray before = bytesOf(*m_document);
    NodeImpl* last = box->getChildAt(4);
    ASSERT_TRUE(static_cast<ElementImpl*>(last)->isAdhoc());
    run<SetNodeIndexCommand>(*m_document, Node(last), 0u, Command::PushUndo);
    EXPECT_EQ(box->getIndexForChild(last), 0);
    m_document->undo();
    EXPECT_EQ(box->getIndexForChild(last), 4);
    run<DeleteNodeCommand>(*m_document, Node(last), Command::PushUndo);
    EXPECT_EQ(box->childCount(), 4u);
    m_document->undo();
    EXPECT_EQ(bytesOf(*m_document), before);
}

TEST_F(DocumentTest, connectionsGoWithWhatTheyEndAt)
{
    PartImpl* box = addPart(*m_document, "testkit/box");
    PartImpl* lamp = addPart(*m_document, "testkit/lamp");
    PartImpl* wire = addPart(*m_document, "testkit/wire");
    auto* ends = new SetValueCommand(true);
    ends->addProperty(Property(property(wire, "from")), Value(Node(box->getChildAt(0))));
    ends->addProperty(Property(property(wire, "to")), Value(Node(lamp->getChildAt(0))));
    ASSERT_TRUE(m_document->executeCommand(ends).isValid()) << m_document->lastError().toStdString();
    const QByteArray before = bytesOf(*m_document);
    run<DeleteNodeCommand>(*m_document, Node(lamp), Command::PushUndo);
    EXPECT_EQ(firstScene(*m_document)->childCount(), 1u);
    m_document->undo();
    EXPECT_EQ(bytesOf(*m_document), before);
    NodeImpl* again = firstScene(*m_document)->getChildAt(2);
    EXPECT_EQ(again->valueOfProperty(key("from")).toNode().impl(), box->getChildAt(0));
    EXPECT_TRUE(again->valueOfProperty(key("to")).toNode().valid()) << "names the lamp that was made again";
}

TEST_F(DocumentTest, valuesNameTheDocumentsOwnResources)
{
    PartImpl* picture = addPart(*m_document, "core/picture");
    const Value added = run<AddResourceCommand>(
        *m_document, Resource(std::make_shared<LocalREntry>(QStringLiteral("photo"), Resource::IMAGE, "bytes",
                                                            QStringLiteral("png"))));
    EXPECT_EQ(added.toResource().toString(), QStringLiteral("local/photo"));
    ASSERT_TRUE(set(property(picture, "picture"), Value(Resource(QStringLiteral("local/photo")))));
    EXPECT_EQ(property(picture, "picture")->getValue().toResource().data(), QByteArray("bytes"));
    m_document->undo();
    m_document->undo();
    EXPECT_FALSE(m_document->resource(QStringLiteral("local/photo")).isValid());
}

TEST_F(DocumentTest, aReflectionShowsAndEditsItsOriginal)
{
    PartImpl* box = addPart(*m_document, "testkit/box");
    PartImpl* lamp = addPart(*m_document, "testkit/lamp");
    set(property(box, "length"), Value(0.3));
    const QByteArray before = bytesOf(*m_document);
    QSignalSpy added(box, &NodeImpl::ReflectionAdded);
    QSignalSpy removed(box, &NodeImpl::ReflectionRemoved);
    EXPECT_TRUE(box->canReflect());
    const Value made = run<ReflectControlsCommand>(*m_document, Part(box), Node(lamp), true);
    auto* reflection = qobject_cast<PartImpl*>(made.toNode().impl());
    ASSERT_TRUE(reflection) << m_document->lastError().toStdString();
    EXPECT_EQ(added.count(), 1);
    EXPECT_EQ(reflection->parentNode(), lamp->popup());
    EXPECT_EQ(reflection->reflectionOriginal(), box);
    EXPECT_EQ(reflection->reflectionKind(), ReflectionKind::Controls);
    EXPECT_FALSE(reflection->canReflect());
    EXPECT_EQ(lamp->findReflectionOfElement(box), reflection);
    EXPECT_EQ(box->findReflectionOfElement(box), nullptr);
    EXPECT_EQ(reflection->childCount(), 1u) << "the knob, not the pin";
    EXPECT_EQ(run<ReflectControlsCommand>(*m_document, Part(box), Node(lamp), true).toNode().impl(), reflection);

    PropertyImpl* shown = property(reflection, "length");
    EXPECT_TRUE(shown->isMutableProxy());
    EXPECT_TRUE(shown->userCanEdit());
    ASSERT_TRUE(set(shown, Value(0.4)));
    EXPECT_EQ(property(box, "length")->getValue(), Value(0.4));
    ASSERT_TRUE(set(property(reflection->getChildAt(0), "turn"), Value(0.7)));
    EXPECT_EQ(property(box->getChildAt(1), "turn")->getValue(), Value(0.7));
    EXPECT_FALSE(property(reflection, "position")->isProxy());

    const QByteArray reflected = bytesOf(*m_document);
    run<DeleteNodeCommand>(*m_document, Node(box), Command::PushUndo);
    EXPECT_TRUE(lamp->popup()->parts().empty()) << "gone with its original";
    m_document->undo();
    EXPECT_EQ(bytesOf(*m_document), reflected);
    box = static_cast<PartImpl*>(firstScene(*m_document)->getChildAt(0));
    ASSERT_TRUE(lamp->findReflectionOfElement(box));
    EXPECT_TRUE(run<ReflectControlsCommand>(*m_document, Part(box), Node(lamp), false).isValid());
    EXPECT_EQ(lamp->findReflectionOfElement(box), nullptr);
    EXPECT_FALSE(run<ReflectPadsCommand>(*m_document, Part(box), Node(lamp), true).isValid()) << "it has no pads";
    while (m_document->canUndo() && bytesOf(*m_document) != before)
        m_document->undo();
    EXPECT_EQ(bytesOf(*m_document), before);
    EXPECT_EQ(removed.count(), 1) << "once, when it was deleted with the box that was watched";
}

TEST_F(DocumentTest, theSelectionHoldsLiveElementsOnly)
{
    PartImpl* box = addPart(*m_document, "testkit/box");
    PartImpl* lamp = addPart(*m_document, "testkit/lamp");
    DocumentImpl elsewhere;
    PartImpl* stranger = addPart(elsewhere, "testkit/box");
    QSignalSpy changed(m_document.get(), &DocumentImpl::SelectionChanged);
    m_document->setSelection({box, stranger});
    m_document->setSelection({box});
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(m_document->getSelection(), ElementImplSet({box}));
    run<SelectAllCommand>(*m_document);
    EXPECT_EQ(m_document->getSelection(), ElementImplSet({box, lamp}));
    run<DeleteNodeCommand>(*m_document, Node(box), Command::PushUndo);
    EXPECT_EQ(m_document->getSelection(), ElementImplSet({lamp}));
    EXPECT_EQ(changed.count(), 3);
}

TEST_F(DocumentTest, aPopupIsShownWithoutAStep)
{
    PartImpl* lamp = addPart(*m_document, "testkit/lamp");
    const QString top = m_document->undoText();
    EXPECT_TRUE(run<ShowPopupCommmand>(*m_document, Part(lamp), true).isValid());
    EXPECT_EQ(lamp->popup()->valueOfProperty(key("open")), Value(true));
    EXPECT_EQ(m_document->undoText(), top);
    EXPECT_FALSE(run<ShowPopupCommmand>(*m_document, Part(addPart(*m_document, "testkit/box")), true).isValid());
}

TEST_F(DocumentTest, theViewThatHasTheFocusNamesTheSpace)
{
    class FixedView : public View
    {
    public:
        explicit FixedView(SpaceImpl* space) : m_space(space) {}
        Space space() const override { return m_space; }

    private:
        Space m_space;
    };
    FixedView first(firstScene(*m_document));
    FixedView second(firstScene(*m_document));
    ViewManager manager;
    QSignalSpy changed(&manager, &ViewManager::viewChanged);
    EXPECT_FALSE(manager.getFocusedSpace().valid());
    manager.addView(&first);
    manager.addView(&second);
    manager.setFocusedView(&second);
    EXPECT_EQ(manager.getFocusedSpace().impl(), firstScene(*m_document));
    manager.removeView(&second);
    EXPECT_EQ(manager.focusedView(), &first);
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(DocumentTest, classesHaveLabelsAndFoldersInTheTree)
{
    EXPECT_EQ(m_document->getMetaLabelForCID(getCidForString("testkit/box")), QStringLiteral("Box"));
    EXPECT_TRUE(m_document->getMetaLabelForCID(getCidForString("no/such")).isEmpty());
    for (const PartsTreeStructure::Folder& folder : m_document->getPartsTreeStructure().folders) {
        if (folder.label != QLatin1String("Test"))
            continue;
        EXPECT_EQ(folder.classes, std::vector<ClassId>({getCidForString("testkit/box"), getCidForString("testkit/lamp"),
                                                        getCidForString("testkit/wire")}));
        return;
    }
    ADD_FAILURE() << "no folder of the test kit";
}

TEST_F(DocumentTest, aCustomPartIsAClassWithTheValuesOfThePart)
{
    PartImpl* box = addPart(*m_document, "testkit/box");
    set(property(box, "length"), Value(0.09));
    set(property(box, "count"), Value(7));
    run<AddSubpartCommand>(*m_document, Node(box), getCidForString("testkit/pin"));
    const ClassId custom = getCidForString("testkit/long-box");
    ASSERT_TRUE(m_document->addCustomPartDefinition(custom, box, QStringLiteral("Long box")));
    EXPECT_FALSE(m_document->addCustomPartDefinition(custom, box, QStringLiteral("Again")));
    PartImpl* copy = addPart(*m_document, "testkit/long-box");
    EXPECT_EQ(copy->valueOfProperty(key("length")), Value(0.09));
    EXPECT_FALSE(copy->hasOwnValue(key("length")));
    EXPECT_EQ(copy->childCount(), 3u);
    EXPECT_TRUE(copy->instanceOf(getCidForString("testkit/box")));
    EXPECT_EQ(m_document->getMetaLabelForCID(custom), QStringLiteral("Long box"));
}

TEST_F(DocumentTest, aSceneOfManyPartsKeepsItsOrder)
{
    // Past the size of one chunk of the list of children, with removals and moves in the middle.
    std::vector<NodeSnapshot> nodes;
    nodes.reserve(3000);
    for (int i = 0; i < 3000; ++i)
        nodes.push_back(NodeSnapshot::ofPrototype(*m_document->getNodeDb(), getCidForString("testkit/wire")));
    SceneImpl* scene = firstScene(*m_document);
    run<AddNodesCommand>(*m_document, Node(scene), std::move(nodes));
    ASSERT_EQ(scene->childCount(), 3000u);
    std::vector<NodeImpl*> expected = scene->children().toVector();
    run<SetNodeIndexCommand>(*m_document, Node(expected[2500]), 3u, Command::PushUndo);
    NodeImpl* moved = expected[2500];
    expected.erase(expected.begin() + 2500);
    expected.insert(expected.begin() + 3, moved);
    std::vector<Node> doomed;
    std::vector<NodeImpl*> rest;
    for (size_t i = 0; i < expected.size(); ++i) {
        if (i % 3 == 1)
            doomed.emplace_back(expected[i]);
        else
            rest.push_back(expected[i]);
    }
    const QByteArray before = bytesOf(*m_document);
    run<DeleteNodeCommand>(*m_document, doomed, Command::PushUndo);
    EXPECT_EQ(scene->children().toVector(), rest);
    for (unsigned int i = 0; i < rest.size(); ++i) {
        ASSERT_EQ(scene->getChildAt(i), rest[i]);
        ASSERT_EQ(scene->getIndexForChild(rest[i]), static_cast<int>(i));
    }
    m_document->undo();
    EXPECT_EQ(bytesOf(*m_document), before);
}

} // namespace

#include "documentTest.moc"
