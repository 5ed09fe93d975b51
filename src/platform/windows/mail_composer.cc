#include "platform/windows/mail_composer.h"

#include <ZQ7Standard/RunTimeError.h>
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <utility>

#include "formats/address.h"
#include "platform/windows/library.h"
#include "platform/windows/limited_call.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

// The structures of MAPISendMailW, which the headers of MinGW lack.

struct MapiRecipient {
  ULONG reserved;
  ULONG kind;
  wchar_t* name;
  wchar_t* address;
  ULONG entry_size;
  void* entry;
};

struct MapiFile {
  ULONG reserved;
  ULONG flags;
  ULONG position;
  wchar_t* path;
  wchar_t* name;
  void* type;
};

struct MapiMessage {
  ULONG reserved;
  wchar_t* subject;
  wchar_t* text;
  wchar_t* type;
  wchar_t* received;
  wchar_t* conversation;
  ULONG flags;
  MapiRecipient* originator;
  ULONG recipient_count;
  MapiRecipient* recipients;
  ULONG file_count;
  MapiFile* files;
};

using SendMail = ULONG WINAPI(ULONG_PTR session, ULONG_PTR window, MapiMessage* message,
                              ULONG flags, ULONG reserved);

constexpr ULONG kTo = 1;
constexpr ULONG kWithWindow = 1 | 8;  // MAPI_LOGON_UI, MAPI_DIALOG
constexpr ULONG kSuccess = 0;
constexpr ULONG kGivenUpByUser = 1;
constexpr ULONG kNoPosition = ~0UL;

std::wstring Decoded(std::string_view encoded) {
  return Wide(FromUtf8(PercentDecoded(encoded)));
}

std::string_view TakePart(std::string_view& rest, char separator) {
  const std::string_view part = rest.substr(0, rest.find(separator));
  rest.remove_prefix(std::min(rest.size(), part.size() + 1));
  return part;
}

/// What a mailto address says, and the files.
struct Mail {
  std::vector<std::wstring> recipients = {};
  std::wstring subject = {};
  std::wstring body = {};
  std::vector<std::wstring> files = {};
};

Mail ReadAddress(std::string_view address) {
  Mail mail;
  TakePart(address, ':');
  std::string_view recipients = TakePart(address, '?');
  while (!recipients.empty()) {
    mail.recipients.push_back(L"SMTP:" + Decoded(TakePart(recipients, ',')));
  }
  while (!address.empty()) {
    std::string_view value = TakePart(address, '&');
    const std::string_view field = TakePart(value, '=');
    if (field == "subject") mail.subject = Decoded(value);
    if (field == "body") mail.body = Decoded(value);
  }
  return mail;
}

/// Shows the message in the mail program, and waits for the user. Returns the error of MAPI.
ULONG Show(Mail& mail) {
  constexpr ULONG kNoProgram = 2;  // MAPI_E_FAILURE
  const SystemLibrary library(L"mapi32.dll");
  auto* const send = library.Find<SendMail>("MAPISendMailW");
  if (send == nullptr) return kNoProgram;
  std::vector<MapiRecipient> recipients;
  for (std::wstring& recipient : mail.recipients) {
    recipients.push_back(
        {0, kTo, recipient.data() + recipient.find(L':') + 1, recipient.data(), 0, nullptr});
  }
  std::vector<MapiFile> files;
  for (std::wstring& file : mail.files) {
    files.push_back({0, 0, kNoPosition, file.data(), nullptr, nullptr});
  }
  MapiMessage message{};
  message.subject = mail.subject.data();
  message.text = mail.body.data();
  message.recipient_count = static_cast<ULONG>(recipients.size());
  message.recipients = recipients.data();
  message.file_count = static_cast<ULONG>(files.size());
  message.files = files.data();
  return send(0, 0, &message, kWithWindow, 0);
}

}  // namespace

void ComposeMail(std::string_view address, std::vector<std::wstring> files) {
  // A program that is missing fails at once; one that is there may show its window for hours.
  constexpr std::chrono::seconds kTimeToFail{2};
  Mail mail = ReadAddress(address);
  mail.files = std::move(files);
  const auto error =
      ResultWithin<ULONG>([mail = std::move(mail)]() mutable { return Show(mail); }, kTimeToFail);
  if (!error || *error == kSuccess || *error == kGivenUpByUser) return;
  throw RunTimeError(Error::kCannotCreateObject, "there is no mail program that takes attachments");
}

}  // namespace ZQ7Standard
