#ifndef ZQ7STANDARD_PLATFORM_PATH_TEXT_H_
#define ZQ7STANDARD_PLATFORM_PATH_TEXT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <filesystem>

namespace ZQ7Standard {

/// The path text of a native path: "C:\srv\app\set.ini" for /srv/app/set.ini. A relative
/// path stays relative, "C:set.ini". No path text leads back to a name that holds "\" or
/// bytes that are not UTF-8.
ZQ7STANDARD_EXPORT Text PathText(const std::filesystem::path& path);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_PATH_TEXT_H_
