// Validators: what they allow, and whom they tell of changes.
#include "zkcore/values/validator.h"

#include "tests/support/messageCapture.h"

#include <QObject>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <new>

namespace {

constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

Value textValue(const char* characters)
{
    return Value(QString::fromUtf8(characters));
}

} // namespace

/// Counts the notifications it gets, and may do something at each.
class ValidatorListener : public QObject
{
    Q_OBJECT

public:
    int calls = 0;
    std::function<void()> action;

public Q_SLOTS:
    void onValidatorChanged()
    {
        ++calls;
        if (action)
            action();
    }
};

namespace {

TEST(ValidatorTest, DoublesAreClampedIntoTheRange)
{
    const DoubleValidator range(-1.0, 2.5);
    EXPECT_TRUE(range.isValid(Value(2.5)));
    EXPECT_TRUE(range.isValid(Value(-1.0)));
    EXPECT_FALSE(range.isValid(Value(std::nextafter(2.5, 3.0))));
    EXPECT_FALSE(range.isValid(Value(1))); // an INT
    EXPECT_FALSE(range.isValid(Value(quietNaN)));
    EXPECT_EQ(range.fixup(Value(7.0)), Value(2.5));
    EXPECT_EQ(range.fixup(Value(-infinity)), Value(-1.0));
    EXPECT_FALSE(range.fixup(Value(quietNaN)).isValid());
    EXPECT_FALSE(range.fixup(Value(1)).isValid());
    EXPECT_TRUE(range.isValid(Value(zk::Point{0, 2})));
    EXPECT_FALSE(range.isValid(Value(zk::Point{0, 3})));
    EXPECT_EQ(range.fixup(Value(zk::Point{-9, 9})), Value(zk::Point{-1, 2.5}));
    EXPECT_EQ(range.fixup(Value(std::vector<double>{9, 0})), Value(std::vector<double>{2.5, 0}));
    EXPECT_EQ(DoubleValidator(3, 1).minimum(), 1.0);
    EXPECT_EQ(range.reason(Value(3.0)), QStringLiteral("Only values from -1 to 2.5 are allowed."));
}

TEST(ValidatorTest, TheFullRangeKeepsOutWhatIsNotFinite)
{
    for (const DoubleValidator& full : {DoubleValidator(), DoubleValidator(-infinity, quietNaN)}) {
        EXPECT_TRUE(full.isValid(Value(std::numeric_limits<double>::max())));
        EXPECT_FALSE(full.isValid(Value(infinity)));
        EXPECT_FALSE(full.isValid(Value(quietNaN)));
        EXPECT_EQ(full.fixup(Value(infinity)), Value(std::numeric_limits<double>::max()));
    }
}

TEST(ValidatorTest, Integers)
{
    const IntValidator range(10, -3);
    EXPECT_TRUE(range.isValid(Value(-3)));
    EXPECT_FALSE(range.isValid(Value(11)));
    EXPECT_FALSE(range.isValid(Value(5.0)));
    EXPECT_EQ(range.fixup(Value(99)), Value(10));
    EXPECT_FALSE(range.fixup(Value(5.0)).isValid());
    EXPECT_TRUE(IntValidator().isValid(Value(std::numeric_limits<int>::min())));
}

TEST(ValidatorTest, SetsAndResources)
{
    const SetValidator set(Value(std::vector<QString>{QStringLiteral("Fast"), QStringLiteral("Slow")}));
    EXPECT_TRUE(set.isValid(textValue("Slow")));
    EXPECT_FALSE(set.isValid(textValue("slow")));
    EXPECT_FALSE(set.fixup(textValue("slow")).isValid());
    EXPECT_EQ(set.reason(textValue("slow")), QStringLiteral("Only these values are allowed: Fast, Slow."));

    const ResourceValidator bells({Resource("a/bell"), Resource("a/horn")}, {QStringLiteral("Bell")});
    EXPECT_EQ(bells.indexForResource(Value(Resource("a/horn"))), 1);
    EXPECT_EQ(bells.indexForResource(Value(Resource("a/drum"))), -1);
    EXPECT_EQ(bells.indexForResource(textValue("a/horn")), -1);
    EXPECT_EQ(bells.labelForResource(Value(Resource("a/bell"))), QStringLiteral("Bell"));
    EXPECT_TRUE(bells.labelForResource(Value(Resource("a/drum"))).isNull());
    EXPECT_EQ(bells.labels().size(), 2u); // a label for every resource
    EXPECT_TRUE(bells.resourceAtIndex(7).isNull());
    EXPECT_FALSE(bells.isValid(Value(Resource("a/drum"))));
}

TEST(ValidatorTest, PatternsMatchTheWholeText)
{
    StringValidator pattern;
    EXPECT_TRUE(pattern.isValid(textValue("anything at all")));
    pattern.setRegularExpression(QStringLiteral("[a-z]+|x y"));
    EXPECT_TRUE(pattern.isValid(textValue("abc")));
    EXPECT_TRUE(pattern.isValid(textValue("x y")));
    EXPECT_FALSE(pattern.isValid(textValue("abc1")));
    EXPECT_FALSE(pattern.isValid(textValue("abc\n")));
    EXPECT_FALSE(pattern.isValid(Value(1)));
    EXPECT_EQ(pattern.fixup(textValue("  abc\n")), textValue("abc"));
    EXPECT_FALSE(pattern.fixup(textValue("a b")).isValid());

    const MessageCapture capture;
    pattern.setRegularExpression(QStringLiteral("a(b"));
    EXPECT_EQ(
        capture.warnings(),
        QStringList(QStringLiteral(
            "StringValidator: malformed regular expression \"a(b\": missing closing parenthesis (at character 4)")));
    EXPECT_EQ(pattern.regularExpression(), QStringLiteral("[a-z]+|x y"));
    EXPECT_TRUE(pattern.isValid(textValue("abc")));
}

TEST(ValidatorTest, Comparison)
{
    EXPECT_TRUE(DoubleValidator(0, 1).isEqual(DoubleValidator(1, 0)));
    EXPECT_FALSE(DoubleValidator(0, 1).isEqual(DoubleValidator(0, 2)));
    EXPECT_FALSE(DoubleValidator(0, 1).isEqual(IntValidator(0, 1)));
    EXPECT_FALSE(SetValidator(Value(std::vector<int>{1})).isEqual(SetValidator(Value(std::vector<int>{2}))));
    const std::vector<Resource> list{Resource("a/bell")};
    EXPECT_TRUE(ResourceValidator(list, {}).isEqual(ResourceValidator(list, {QStringLiteral("Bell")})));
    EXPECT_TRUE(StringValidator().isEqual(StringValidator()));
}

TEST(ValidatorTest, ChangesAreToldOnceToEachReceiver)
{
    DoubleValidator range(0, 1);
    ValidatorListener listener;
    range.connect(&listener, SLOT(onValidatorChanged()));
    range.connect(&listener, SLOT(onValidatorChanged()));
    range.setRange(0, 1); // no change
    range.setRange(0, 2);
    EXPECT_EQ(listener.calls, 1);
    range.disconnect(&listener);
    range.disconnect(&listener);
    range.setRange(0, 3);
    EXPECT_EQ(listener.calls, 1);
    range.connect(&listener, SLOT(onValidatorChanged()));
    range.setRange(0, 4);
    EXPECT_EQ(listener.calls, 2);
}

TEST(ValidatorTest, AReceiverAtTheAddressOfADeadOneIsConnected)
{
    IntValidator range(0, 1);
    alignas(ValidatorListener) std::byte place[sizeof(ValidatorListener)];
    auto* first = new (place) ValidatorListener;
    range.connect(first, SLOT(onValidatorChanged()));
    first->~ValidatorListener();
    auto* second = new (place) ValidatorListener;
    range.connect(second, SLOT(onValidatorChanged()));
    range.setRange(0, 2);
    EXPECT_EQ(second->calls, 1);
    second->~ValidatorListener();
    range.setRange(0, 3);
    // Receivers that come and go do not pile up, nor do they disturb the one that stays.
    ValidatorListener staying;
    range.connect(&staying, SLOT(onValidatorChanged()));
    for (int i = 0; i < 1000; ++i) {
        ValidatorListener passing;
        range.connect(&passing, SLOT(onValidatorChanged()));
    }
    range.connect(&staying, SLOT(onValidatorChanged()));
    range.setRange(0, 4);
    EXPECT_EQ(staying.calls, 1);
}

TEST(ValidatorTest, ReceiversMayDoAnythingWhenTold)
{
    auto set = std::make_unique<SetValidator>(Value(std::vector<int>{1}));
    ValidatorListener first;
    auto second = std::make_unique<ValidatorListener>();
    ValidatorListener third;
    ValidatorListener fourth;
    for (ValidatorListener* listener : {&first, second.get(), &third, &fourth})
        set->connect(listener, SLOT(onValidatorChanged()));
    first.action = [&] {
        second.reset();
        set->disconnect(&third);
    };
    fourth.action = [&] { set.reset(); };
    set->setValidValues(Value(std::vector<int>{2}));
    EXPECT_EQ(first.calls, 1);
    EXPECT_EQ(third.calls, 0);
    EXPECT_EQ(fourth.calls, 1);
    EXPECT_FALSE(set);
}

} // namespace

#include "validatorTest.moc"
