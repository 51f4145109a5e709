#pragma once

#include "platform/Handles.h"

#include <windows.h>

#include <olectl.h>

#include <string>

// Pictures among the program's resources. Failures are thrown as SystemError; those of LoadResourcePicture name the
// resource.
namespace modResource {

// The picture of a resource, by way of a temporary file that is deleted at once. Without a file name, one is made up in
// the system's temporary folder.
UniqueCom<IPicture> LoadResourcePicture(const std::string& resourceName, const std::string& resourceType = "GIF",
                                        std::string temporaryFile = "");

// A new file name in the folder, or in the system's temporary folder when none is named. A unique number of 0 lets the
// system choose one and create an empty file of that name.
std::string MakeTemporaryFileName(const std::string& folder, const std::string& prefix, uint16_t uniqueNumber);

void WriteResourceToFile(const std::string& resourceName, const std::string& resourceType, const std::string& fileName);

}  // namespace modResource
