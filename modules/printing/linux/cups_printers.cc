#include "printing/linux/cups_printers.h"

#include <ZQ7Standard/RunTimeError.h>
#include <cups/cups.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "printing/linux/cups_server.h"
#include "printing/linux/named_settings.h"

namespace ZQ7Standard {
namespace {

/// The URI of a printer on its server, percent-encoded.
std::string UriOf(const std::string& printer) {
  std::array<char, HTTP_MAX_URI> uri{};
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr,
                   "localhost", 0, "/printers/%s", printer.c_str());
  return uri.data();
}

/// The path of a URI.
std::string PathOf(const std::string& uri) {
  return uri.substr(uri.find('/', std::string_view("ipp://").size()));
}

IppMessage RequestFor(ipp_op_t operation, const std::string& printer) {
  IppMessage request(ippNewRequest(operation));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
               UriOf(printer).c_str());
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  return request;
}

/// The first text of an attribute; empty if there is none.
std::string TextOf(ipp_attribute_t* attribute) {
  const char* const text = ippGetString(attribute, 0, nullptr);
  return text == nullptr ? "" : text;
}

void CheckAnswer(const IppMessage& answer) {
  const ipp_status_t status = ippGetStatusCode(answer.get());
  if (status < IPP_STATUS_REDIRECTION_OTHER_SITE) return;
  const std::string said = TextOf(ippFindAttribute(answer.get(), "status-message", IPP_TAG_TEXT));
  throw RunTimeError(Error::kPrinterError, said.empty() ? ippErrorString(status) : said);
}

bool IsNumber(ipp_tag_t tag) {
  return tag == IPP_TAG_ENUM || tag == IPP_TAG_INTEGER;
}

/// The printer's default for a setting; empty if it reports none.
std::string DefaultName(ipp_t* printer, const SettingNames& setting) {
  const std::string name = setting.attribute + std::string("-default");
  ipp_attribute_t* const attribute = ippFindAttribute(printer, name.c_str(), IPP_TAG_ZERO);
  if (IsNumber(ippGetValueTag(attribute))) return std::to_string(ippGetInteger(attribute, 0));
  // Some printers answer with a word instead of a number, which tells nothing.
  if (setting.kind == NameKind::kNumber) return "";
  if (attribute != nullptr) return TextOf(attribute);
  ipp_attribute_t* const media = ippFindAttribute(printer, "media-col-default", IPP_TAG_ZERO);
  return TextOf(ippFindAttribute(ippGetCollection(media, 0), setting.attribute, IPP_TAG_ZERO));
}

/// Adds a paper from a bin, which only a collection can express.
void AddPaperFromBin(ipp_t* job, const std::string& paper, const std::string& bin) {
  const IppMessage collection(ippNew());
  if (const pwg_media_t* const media = pwgMediaForPWG(paper.c_str())) {
    const IppMessage size(ippNew());
    ippAddInteger(size.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "x-dimension", media->width);
    ippAddInteger(size.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "y-dimension", media->length);
    ippAddCollection(collection.get(), IPP_TAG_JOB, "media-size", size.get());
  }
  ippAddString(collection.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "media-source", nullptr,
               bin.c_str());
  ippAddCollection(job, IPP_TAG_JOB, "media-col", collection.get());
}

void AddNumber(ipp_t* job, const char* attribute, const std::string& number) {
  if (number.empty()) return;
  ippAddInteger(job, IPP_TAG_JOB, IPP_TAG_ENUM, attribute, std::stoi(number));
}

/// Adds a printer's settings to a job.
void AddSettings(ipp_t* job, const SettingValues& values) {
  const auto& [orientation, paper, bin, quality] = values;
  AddNumber(job, "orientation-requested", orientation.name);
  AddNumber(job, "print-quality", quality.name);
  if (!bin.name.empty()) {
    AddPaperFromBin(job, paper.name, bin.name);
  } else if (!paper.name.empty()) {
    ippAddString(job, IPP_TAG_JOB, IPP_TAG_KEYWORD, "media", nullptr, paper.name.c_str());
  }
}

class CupsQueue final : public NamedSettings {
 public:
  explicit CupsQueue(std::string name) : name_(std::move(name)) {}

  void Print(std::string_view pdf) override {
    const IppMessage job = RequestFor(IPP_OP_PRINT_JOB, name_);
    ippAddString(job.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, "Document");
    ippAddString(job.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                 CUPS_FORMAT_PDF);
    AddSettings(job.get(), Values());
    CheckAnswer(CupsServer(Purpose::kJob).Ask(job, PathOf(UriOf(name_)), pdf));
  }

 private:
  SettingValues Defaults() override {
    SettingValues values;
    std::ranges::transform(kSettings, values.begin(), [this](const SettingNames& setting) {
      return ValueOf(setting, DefaultName(Attributes(), setting));
    });
    return values;
  }

  bool Supports(const SettingNames& setting, const std::string& name) override {
    const std::string supported = setting.attribute + std::string("-supported");
    ipp_attribute_t* const attribute =
        ippFindAttribute(Attributes(), supported.c_str(), IPP_TAG_ZERO);
    if (IsNumber(ippGetValueTag(attribute))) {
      return ippContainsInteger(attribute, std::stoi(name)) != 0;
    }
    return attribute != nullptr && ippContainsString(attribute, name.c_str()) != 0;
  }

  /// The server's attributes of the printer, as of the first call.
  ipp_t* Attributes() {
    if (attributes_) return attributes_.get();
    const IppMessage request = RequestFor(IPP_OP_GET_PRINTER_ATTRIBUTES, name_);
    IppMessage answer = CupsServer(Purpose::kQuestion).Ask(request, PathOf(UriOf(name_)));
    CheckAnswer(answer);
    attributes_ = std::move(answer);
    return attributes_.get();
  }

  std::string name_;
  IppMessage attributes_;
};

}  // namespace

std::vector<std::string> CupsPrinterNames() {
  CupsServer server(Purpose::kQuestion);
  if (!server.IsThere()) return {};
  const IppMessage request(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "printer-name");
  const IppMessage answer = server.Ask(request, "/");
  if (ippGetStatusCode(answer.get()) == IPP_STATUS_ERROR_NOT_FOUND) return {};
  CheckAnswer(answer);
  std::vector<std::string> names;
  for (ipp_attribute_t* name = ippFindAttribute(answer.get(), "printer-name", IPP_TAG_NAME);
       name != nullptr; name = ippFindNextAttribute(answer.get(), "printer-name", IPP_TAG_NAME)) {
    names.push_back(TextOf(name));
  }
  return names;
}

std::string CupsDefaultName() {
  return CupsServer(Purpose::kQuestion).DefaultPrinter();
}

Printer CupsPrinter(const std::string& name) {
  return PrinterOn(FromUtf8(name), std::make_shared<CupsQueue>(name));
}

}  // namespace ZQ7Standard
