#pragma once

#include "zkcore/base/export.h"

#include <QString>

/// A class id names a node class (a kind of part, subpart, scene, pop-up or domain). Its text is a path such as
/// "electronics/block" whose first component is the domain. Texts are interned: the same text gives the same number
/// for the whole run, whether or not any package defines such a class.
using ClassId = unsigned int;

/// The class id that names nothing.
constexpr ClassId INVALID_CID = 0;

/// The class id for a text; INVALID_CID for a null or empty text.
ZKCORE_EXPORT ClassId getCidForString(const char* text);
ZKCORE_EXPORT ClassId getCidForString(const QString& text); ///< likewise

/// The text of a class id, for messages; empty for INVALID_CID and for numbers never given out.
ZKCORE_EXPORT QString findStringForCid(const ClassId& cid);

/// The domain of a class id, itself a class id: "flowcharts/step" gives the id of "flowcharts/*".
/// INVALID_CID for an unknown number.
ZKCORE_EXPORT ClassId getDomain(const ClassId& cid);

/// The domain's text, the first component of the class id's text: "flowcharts".
ZKCORE_EXPORT QString getDomainAsString(ClassId cid);

/// Whether the class id names a domain, that is has the form "flowcharts/*".
ZKCORE_EXPORT bool isDomain(const ClassId& cid);
