#ifndef ZQ7STANDARD_MODULES_PRINTING_PAGE_DOCUMENT_H_
#define ZQ7STANDARD_MODULES_PRINTING_PAGE_DOCUMENT_H_

#include <ZQ7Standard/platform/print_document.h>

#include <memory>
#include <string_view>

namespace ZQ7Standard {

/// What a page is drawn for. What fails raises error 482.
class PageTarget {
 public:
  virtual ~PageTarget() = default;

  /// The page of the next document, in millimetres, as it is looked at.
  virtual PageSize Page() = 0;

  /// Prints a document, whose bytes are those of a PDF file.
  virtual void Print(std::string_view pdf) = 0;
};

/// Draws documents of one page as PDF, in millimetres at all times.
std::shared_ptr<PrintDocument> NewPageDocument(std::shared_ptr<PageTarget> target);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_PAGE_DOCUMENT_H_
