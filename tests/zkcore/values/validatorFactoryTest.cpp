// Toolkit validators: what may be typed, and that Return always gets through.
#include "zkcore/values/validatorFactory.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QValidator>
#include <gtest/gtest.h>

namespace {

struct Verdict
{
    Value::Type type;
    const char* text;
    QValidator::State state;
};

TEST(ValidatorFactoryTest, Verdicts)
{
    const Verdict verdicts[] = {
        {Value::INT, "12", QValidator::Acceptable},
        {Value::INT, "-5", QValidator::Acceptable},
        {Value::INT, "", QValidator::Intermediate},
        {Value::INT, "-", QValidator::Intermediate},
        {Value::INT, "12.5", QValidator::Intermediate},
        {Value::INT, "1+2*3", QValidator::Intermediate},
        {Value::INT, "1 000", QValidator::Intermediate},
        {Value::INT, "2 in", QValidator::Intermediate},
        {Value::INT, "99999999999", QValidator::Intermediate},
        {Value::INT, "5 @", QValidator::Invalid},
        {Value::INT, "5\x01", QValidator::Invalid},
        {Value::DOUBLE, "12.5", QValidator::Acceptable},
        {Value::DOUBLE, "1e", QValidator::Intermediate},
        {Value::DOUBLE, "4.7kΩ", QValidator::Intermediate},
        {Value::DOUBLE, "90°", QValidator::Intermediate},
        {Value::DOUBLE, "6\"", QValidator::Intermediate},
        {Value::DOUBLE, "{", QValidator::Invalid},
        {Value::POINT, "1, 2", QValidator::Acceptable},
        {Value::POINT, "1", QValidator::Intermediate},
        {Value::POINT, "1; #", QValidator::Invalid},
        {Value::COLOR, "red", QValidator::Acceptable},
        {Value::COLOR, "#ff0000", QValidator::Acceptable},
        {Value::COLOR, "re", QValidator::Intermediate},
        {Value::COLOR, "#f", QValidator::Intermediate},
        {Value::COLOR, "f#", QValidator::Invalid},
        {Value::COLOR, "a+b", QValidator::Invalid},
        {Value::STRING, "any \x01 text", QValidator::Acceptable},
        {Value::NODE, "12", QValidator::Acceptable},
    };
    for (const Verdict& expected : verdicts) {
        QObject parent;
        const QValidator* validator = QValidatorFactory::createByType(expected.type, &parent);
        EXPECT_EQ(validator->parent(), &parent);
        QString text = QString::fromUtf8(expected.text);
        int cursor = 0;
        EXPECT_EQ(validator->validate(text, cursor), expected.state) << expected.text;
        validator->fixup(text);
        EXPECT_EQ(text, QString::fromUtf8(expected.text));
        EXPECT_EQ(validator->validate(text, cursor), QValidator::Acceptable) << expected.text;
        // What got through once is judged anew the next time.
        EXPECT_EQ(validator->validate(text, cursor), expected.state) << expected.text;
    }
}

TEST(ValidatorFactoryTest, TypingAndReturn)
{
    QLineEdit edit;
    edit.setValidator(QValidatorFactory::createByType(Value::INT, &edit));
    QSignalSpy returns(&edit, &QLineEdit::returnPressed);
    for (const char* text : {"12.5", "1+2*3", "2 in", ""}) {
        edit.clear();
        QTest::keyClicks(&edit, QString::fromLatin1(text));
        EXPECT_EQ(edit.text(), QString::fromLatin1(text));
        returns.clear();
        QTest::keyClick(&edit, Qt::Key_Return);
        EXPECT_EQ(returns.count(), 1) << text;
        EXPECT_EQ(edit.text(), QString::fromLatin1(text));
    }
    edit.clear();
    QTest::keyClicks(&edit, QStringLiteral("1#2"));
    EXPECT_EQ(edit.text(), QStringLiteral("12"));
}

} // namespace
