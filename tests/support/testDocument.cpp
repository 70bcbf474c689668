#include "tests/support/testDocument.h"

#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/storage/documentFile.h"
#include "zkcore/storage/package.h"

#include <QBuffer>
#include <gtest/gtest.h>

bool loadTestKit()
{
    if (Package::findByClassID(getCidForString("testkit/box")))
        return true;
    Package::all(); // the built-in ones come first
    QString error;
    const bool loaded = Package::load(QStringLiteral(ZK_SOURCE_DIR "/tests/data/testkit"), error);
    EXPECT_TRUE(loaded) << error.toStdString();
    return loaded;
}

QByteArray bytesOf(const DocumentImpl& document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QString error;
    EXPECT_TRUE(DocumentFile::write(buffer, document, error)) << error.toStdString();
    return buffer.data();
}

SceneImpl* firstScene(DocumentImpl& document)
{
    return document.getModel()->getScenes().front();
}

PartImpl* addPart(DocumentImpl& document, const char* cid, zk::Point at)
{
    const Value added = run<AddPartCommand>(document, Space(firstScene(document)), getCidForString(cid), at);
    auto* part = qobject_cast<PartImpl*>(added.toNode().impl());
    EXPECT_TRUE(part) << document.lastError().toStdString();
    return part;
}

PropertyImpl* property(NodeImpl* node, const char* key)
{
    PropertyImpl* found = node->getProperty(PropertyKey::fromString(key));
    EXPECT_TRUE(found) << key;
    return found;
}

bool set(PropertyImpl* property, const Value& value, bool pushUndo)
{
    return property->document()->executeCommand(new SetValueCommand(Property(property), value, pushUndo)).isValid();
}
