#pragma once

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"

#include <QByteArray>
#include <vector>

/// Loads the package of the tests ("testkit/box", "testkit/lamp", "testkit/wire") once; returns false when it is
/// broken.
bool loadTestKit();

/// The document as it would be saved.
QByteArray bytesOf(const DocumentImpl& document);

/// Executes a command of the type on the document.
template <typename T, typename... Args> Value run(DocumentImpl& document, Args&&... args)
{
    return document.executeCommand(new T(std::forward<Args>(args)...));
}

/// The first scene.
SceneImpl* firstScene(DocumentImpl& document);

/// Adds a part of a class to the first scene; one undo step.
PartImpl* addPart(DocumentImpl& document, const char* cid, zk::Point at = {0.01, 0.01});

/// A property of a node by its key's text; fails the test and returns null when it is not there.
PropertyImpl* property(NodeImpl* node, const char* key);

/// Sets one property through a command; whether that worked.
bool set(PropertyImpl* property, const Value& value, bool pushUndo = true);
