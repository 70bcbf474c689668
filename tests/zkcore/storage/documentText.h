#pragma once

#include "zkcore/model/nodeDb.h"
#include "zkcore/storage/documentFile.h"

#include <QByteArray>
#include <QString>

/// A document file around the content of its model, which begins in line 4.
QByteArray documentAround(const QByteArray& modelContent);
/// The same around the content of its first scene, which begins in line 5.
QByteArray documentAroundParts(const QByteArray& sceneContent);

/// What reading a document gives.
struct ReadResult
{
    NodeDb db;
    DocumentContent content;
    QString error;
    bool done = false;

    explicit ReadResult(const QByteArray& bytes);
};

/// Fills the data base with the classes of the built-in packages.
void addClasses(NodeDb& db);

/// Where two subtrees differ, for messages; empty when they are equal.
QString difference(const NodeSnapshot& a, const NodeSnapshot& b);
