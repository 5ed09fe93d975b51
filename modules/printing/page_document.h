#ifndef ZQ7STANDARD_MODULES_PRINTING_PAGE_DOCUMENT_H_
#define ZQ7STANDARD_MODULES_PRINTING_PAGE_DOCUMENT_H_

#include <ZQ7Standard/platform/print_document.h>

#include <memory>
#include <string_view>

namespace ZQ7Standard {

/// The target of a page. Failures raise error 482.
class PageTarget {
 public:
  virtual ~PageTarget() = default;

  /// The size of the next document's page, in millimetres, as it is viewed.
  virtual PageSize Page() = 0;

  /// Prints a document given as PDF bytes.
  virtual void Print(std::string_view pdf) = 0;
};

/// Draws one-page documents as PDF, always in millimetres.
std::shared_ptr<PrintDocument> NewPageDocument(std::shared_ptr<PageTarget> target);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_PAGE_DOCUMENT_H_
