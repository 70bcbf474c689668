#pragma once

#include "zkcore/base/classId.h"

#include <QString>
#include <vector>

/// The part classes offered to the user: folders by group, in each the classes by label.
struct PartsTreeStructure
{
    struct Folder
    {
        QString label; ///< translated
        std::vector<ClassId> classes;
    };
    std::vector<Folder> folders;
};
