#pragma once

#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/storage/package.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QLineEdit>
#include <QUndoStack>
#include <gtest/gtest.h>
#include <set>
#include <vector>

using Nodes = std::set<NodeImpl*>;

/// A document with classes of the package in tests/zkeditor/data.
class ObserverTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        if (Package::findByClassID(getCidForString("testpackage/switch")))
            return;
        Package::all();
        QString error;
        ASSERT_TRUE(Package::load(QStringLiteral(ZK_SOURCE_DIR "/tests/zkeditor/data/testpackage"), error))
            << error.toStdString();
    }

    PartImpl* add(const char* cid) { return addPart(document, cid); }
    std::vector<PartImpl*> add(const char* cid, int count)
    {
        std::vector<PartImpl*> parts;
        parts.reserve(static_cast<size_t>(count));
        for (int i = 0; i < count; ++i)
            parts.push_back(add(cid));
        return parts;
    }
    static Nodes nodesOf(const std::vector<PartImpl*>& parts) { return {parts.begin(), parts.end()}; }
    int undoSteps() const { return document.undoStack()->count(); }
    static bool isOn(NodeImpl* node, const char* key = "on") { return property(node, key)->getValue().toBool(); }
    static QString text(NodeImpl* node, const char* key) { return property(node, key)->getValue().toQString(); }
    static Value boolean(bool value) { return Value(value); }
    static Value string(const char* value) { return Value(QString::fromUtf8(value)); }

    DocumentImpl document;
};

/// An observer that shows values as text and lets the tests reach everything.
class ProbeObserver : public QLineEdit, public PropertyObserver
{
public:
    explicit ProbeObserver(const char* key, Value::Type type = Value::INVALID) : PropertyObserver(this, type)
    {
        setModelProperty(QString::fromLatin1(key));
        setObjectName(QStringLiteral("probe"));
    }

    std::vector<Value> values() const
    {
        std::vector<Value> all;
        for (const PropertyImpl* property : m_props)
            all.push_back(property->getValue());
        return all;
    }
    size_t boundCount() const { return m_props.size(); }
    void write(const Value& value) { setPropertyValue(value); }
    using PropertyObserver::fixupValue;
    using PropertyObserver::getMatchingSubparts;
    using PropertyObserver::hasCompatibleValues;
    using PropertyObserver::invalidColor;
    using PropertyObserver::isShowingValue;
    using PropertyObserver::isTypeCompatible;
    using PropertyObserver::setDisplayValid;
    using PropertyObserver::validateValue;

    int shown = 0; // how often a value was shown
    std::vector<bool> agreed;

protected:
    void onPropertyValueChanged(Property, Value value) override
    {
        ++shown;
        agreed.push_back(hasCompatibleValues());
        setText(hasCompatibleValues() ? value.toQString() : QStringLiteral("mixed"));
    }
};
