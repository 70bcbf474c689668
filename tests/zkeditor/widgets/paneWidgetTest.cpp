#include "zkeditor/widgets/paneWidget.h"

#include "observerFixture.h"
#include "zkcore/widgetSupport/fonts.h"
#include "zkeditor/widgets/bindPass.h"
#include "zkeditor/widgets/containerPaneWidget.h"
#include "zkeditor/widgets/observerCheckbox.h"
#include "zkeditor/widgets/paletteBoxSection.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

class PaneWidgetTest : public ObserverTest
{
};

using PaneWidgetDeathTest = PaneWidgetTest;

/// Counts how often it is bound, and can do something then.
class CountingPane : public QWidget, public PaneWidget
{
public:
    using QWidget::QWidget;
    void bind(DocumentImpl*, const Nodes&) override
    {
        ++bound;
        if (hook)
            hook();
    }
    void unbind() override { ++unbound; }

    int bound = 0;
    int unbound = 0;
    std::function<void()> hook;
};

/// A bindable group that binds its own contents.
class PaneGroup : public QGroupBox, public ContainerPaneWidget
{
public:
    explicit PaneGroup(QWidget* parent) : QGroupBox(parent), ContainerPaneWidget(this) {}
};

} // namespace

TEST_F(PaneWidgetTest, BindsEverythingOnceThroughLayoutsAndContainers)
{
    QWidget form;
    auto* group = new QGroupBox("Group", &form);
    group->setAlignment(Qt::AlignRight);
    auto* inGroup = new CountingPane(group);
    auto* layout = new QVBoxLayout(&form);
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    auto* inLayout = new CountingPane;
    row->addWidget(inLayout);
    auto* label = new QLabel("Label");
    row->addWidget(label);
    auto* spin = new QSpinBox; // has inner widgets of the toolkit's own
    row->addWidget(spin);
    auto* container = new PaneGroup(&form);
    auto* inner = new CountingPane(container);
    auto* nested = new CountingPane(inLayout);
    QFont odd = label->font();
    odd.setPointSize(40);
    label->setFont(odd);

    PaneWidget::bindChildren(&form, &document, {});
    EXPECT_EQ(inGroup->bound, 1);
    EXPECT_EQ(inLayout->bound, 1);
    EXPECT_EQ(inner->bound, 1);  // by its container
    EXPECT_EQ(nested->bound, 0); // its parent does not bind it
    EXPECT_EQ(group->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(label->font(), Fonts::getWidgetFont(label, Fonts::Normal));

    PaneWidget::unbindChildren(&form);
    EXPECT_EQ(inGroup->unbound, 1);
    EXPECT_EQ(inLayout->unbound, 1);
    EXPECT_EQ(inner->unbound, 1);
    EXPECT_EQ(nested->unbound, 0);
    PaneWidget::bindChildren(nullptr, &document, {});
    PaneWidget::unbindChildren(nullptr);
}

TEST_F(PaneWidgetTest, BindingMayDeleteSiblings)
{
    QWidget form;
    auto* first = new CountingPane(&form);
    auto* box = new QWidget(&form);
    new CountingPane(box);
    auto* last = new CountingPane(&form);
    first->hook = [box] { delete box; };
    PaneWidget::bindChildren(&form, &document, {});
    EXPECT_EQ(last->bound, 1);
}

TEST_F(PaneWidgetTest, ObserversOfOnePaneShareTheSubpartsTheySelect)
{
    const auto parts = add("testpackage/switch", 3);
    const Nodes nodes = nodesOf(parts);
    QWidget form;
    ProbeObserver probes[] = {ProbeObserver("on"), ProbeObserver("on"), ProbeObserver("on")};
    for (ProbeObserver& probe : probes) {
        probe.setParent(&form);
        probe.setSubpartId("controls");
    }
    probes[2].setSubpartId("pads");
    auto* last = new CountingPane(&form);
    std::shared_ptr<const BindPass::Nodes> seen;
    last->hook = [&] { seen = BindPass::current(nodes)->subparts("controls"); };

    PaneWidget::bindChildren(&form, &document, nodes);
    ASSERT_TRUE(seen);
    EXPECT_EQ(seen->size(), 3u);
    for (const ProbeObserver& probe : probes)
        EXPECT_EQ(probe.boundCount(), 3u);
    EXPECT_EQ(BindPass::current(nodes), nullptr); // over with the pass

    // The same set with another content is not taken for the one before.
    Nodes growing{parts[0]};
    const BindPass pass(growing);
    probes[0].bind(&document, growing);
    EXPECT_EQ(probes[0].boundCount(), 1u);
    growing.insert(parts[1]);
    probes[0].bind(&document, growing);
    EXPECT_EQ(probes[0].boundCount(), 2u);
    for (ProbeObserver& probe : probes)
        probe.setParent(nullptr);
}

TEST_F(PaneWidgetDeathTest, ContainerNeedsAWidget)
{
    EXPECT_DEATH(ContainerPaneWidget(nullptr), "ZK_ASSERT: \"w\" in ");
}

TEST_F(PaneWidgetTest, SectionShowsItsStateBehindTheLabel)
{
    PaletteBoxSection section;
    auto* header = section.findChild<QPushButton*>();
    ASSERT_TRUE(header);
    EXPECT_EQ(header->text(), QString("Section    [open]"));
    section.setLabel("Light");
    section.setOpen(false);
    EXPECT_EQ(header->text(), QString("Light    [closed]"));
    header->click();
    EXPECT_TRUE(section.open());
    EXPECT_EQ(header->text(), QString("Light    [open]"));
    EXPECT_EQ(section.minimumWidth(), 200);
    section.resize(333, 100);
    section.show();
    EXPECT_EQ(header->width(), 333);
}

TEST_F(PaneWidgetTest, SectionIsLiftedOutOfItsFormInOrderAndStaysBound)
{
    PartImpl* lamp = add("testpackage/lamp");
    property(lamp, "pulse")->setUIHidden(true);
    auto form = std::make_unique<QWidget>();
    auto* section = new PaletteBoxSection(form.get());
    section->setGeometry(0, 0, 250, 200);
    auto* low = new QLabel("low", section);
    low->setGeometry(5, 120, 50, 20);
    auto* box = new ObserverCheckBox(section);
    box->setModelProperty("on");
    box->setGeometry(5, 40, 50, 20);
    auto* beside = new QLabel("beside", section);
    beside->setGeometry(90, 40, 50, 20); // the same height must not push the box out
    auto* hidden = new ObserverCheckBox(section);
    hidden->setModelProperty("pulse");
    hidden->setGeometry(5, 80, 50, 20);

    section->setupPaneWidgets(&document, {lamp});
    QWidget palette;
    QWidget* contents = section->getSectionWidget(&palette);
    form.reset();
    palette.show();
    ASSERT_TRUE(contents->layout());
    QList<QWidget*> order;
    for (int i = 0; i < contents->layout()->count(); ++i)
        order += contents->layout()->itemAt(i)->widget();
    EXPECT_EQ(order, QList<QWidget*>({box, beside, hidden, low}));
    EXPECT_EQ(contents->layout()->contentsMargins(), QMargins(15, 15, 15, 15));
    EXPECT_EQ(contents->layout()->spacing(), 10);
    EXPECT_TRUE(box->isVisible());
    EXPECT_FALSE(hidden->isVisible()); // hidden by its property
    box->click();
    EXPECT_TRUE(isOn(lamp));
}

TEST_F(PaneWidgetTest, SectionHandsTheSpaceClassToItsObservers)
{
    PaletteBoxSection section;
    auto* group = new QGroupBox(&section);
    auto* box = new ObserverCheckBox(group);
    section.setSpacePropertyCid(77);
    EXPECT_EQ(box->spacePropertyCid(), 77u);
}
