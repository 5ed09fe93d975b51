#ifndef ZQ7STANDARD_SRC_TEXT_UNICODE_H_
#define ZQ7STANDARD_SRC_TEXT_UNICODE_H_

#include <ZQ7Standard/Types.h>

#include <string>

namespace ZQ7Standard {

/// `text` in UTF-8 between quotation marks, for the message of an error.
std::string Quoted(TextView text);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_TEXT_UNICODE_H_
