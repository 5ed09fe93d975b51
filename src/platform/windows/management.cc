#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/management.h>
#include <wbemidl.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <mutex>
#include <string>
#include <utility>

#include "formats/clean_text.h"
#include "platform/windows/com.h"
#include "platform/windows/limited_call.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

constexpr std::chrono::seconds kLimit{10};
constexpr LCID kEnglish = 0x0409;

using Names = std::span<const std::string_view>;

struct ClassRow {
  std::string_view name;
  Names properties;
  std::string_view condition = {};  ///< of the instances that are read
};

constexpr auto kBoard =
    std::to_array<std::string_view>({"Manufacturer", "Product", "SerialNumber", "Version"});
constexpr auto kBios = std::to_array<std::string_view>(
    {"Manufacturer", "Name", "ReleaseDate", "SerialNumber", "SMBIOSBIOSVersion", "Version"});
constexpr auto kComputer = std::to_array<std::string_view>(
    {"Domain", "Manufacturer", "Model", "Name", "TotalPhysicalMemory", "UserName", "Workgroup"});
constexpr auto kDisk = std::to_array<std::string_view>(
    {"DeviceID", "Index", "InterfaceType", "Manufacturer", "MediaType", "Model", "Name",
     "PNPDeviceID", "SerialNumber", "Size"});
constexpr auto kVolume = std::to_array<std::string_view>(
    {"Caption", "Description", "DeviceID", "DriveType", "FileSystem", "FreeSpace", "Name", "Size",
     "VolumeName", "VolumeSerialNumber"});
constexpr auto kAdapter = std::to_array<std::string_view>(
    {"AdapterType", "Description", "DeviceID", "MACAddress", "Manufacturer", "Name",
     "NetConnectionID", "NetConnectionStatus", "PNPDeviceID"});
constexpr auto kSystem = std::to_array<std::string_view>(
    {"BuildNumber", "Caption", "CSDVersion", "InstallDate", "LastBootUpTime", "OSArchitecture",
     "SerialNumber", "SystemDirectory", "TotalVisibleMemorySize", "Version"});
constexpr auto kMedium = std::to_array<std::string_view>({"SerialNumber", "Tag"});
constexpr auto kPrinter = std::to_array<std::string_view>(
    {"Default", "DeviceID", "DriverName", "Name", "Network", "PortName"});
constexpr auto kProcessor =
    std::to_array<std::string_view>({"Caption", "DeviceID", "Manufacturer", "MaxClockSpeed", "Name",
                                     "NumberOfCores", "NumberOfLogicalProcessors", "ProcessorId"});
constexpr auto kProduct =
    std::to_array<std::string_view>({"IdentifyingNumber", "Name", "UUID", "Vendor", "Version"});
constexpr auto kSerialPort = std::to_array<std::string_view>({"DeviceID", "Name", "PNPDeviceID"});

// What Linux tells has the same names. Drives of a network are left alone, as they may not answer.
constexpr auto kClasses = std::to_array<ClassRow>({
    {"Win32_BaseBoard", kBoard},
    {"Win32_BIOS", kBios},
    {"Win32_ComputerSystem", kComputer},
    {"Win32_ComputerSystemProduct", kProduct},
    {"Win32_DiskDrive", kDisk},
    {"Win32_LogicalDisk", kVolume, "DriveType <> 4"},
    {"Win32_NetworkAdapter", kAdapter},
    {"Win32_OperatingSystem", kSystem},
    {"Win32_PhysicalMedia", kMedium},
    {"Win32_Printer", kPrinter},
    {"Win32_Processor", kProcessor},
    {"Win32_SerialPort", kSerialPort},
});

/// A question that a thread of its own can own, and its answer.
struct Question {
  std::wstring query;
  std::vector<std::wstring> properties;
};
struct Answer {
  HRESULT result = E_UNEXPECTED;
  std::vector<std::vector<Text>> instances = {};
};

Text TextOf(IWbemClassObject& object, const std::wstring& property) {
  Variant value;
  Variant text;
  if (FAILED(object.Get(property.c_str(), 0, &value, nullptr, nullptr)) || value.vt == VT_NULL ||
      FAILED(VariantChangeTypeEx(&text, &value, kEnglish, VARIANT_ALPHABOOL, VT_BSTR))) {
    return {};
  }
  return CleanText(FromWide({text.bstrVal, SysStringLen(text.bstrVal)}));
}

HRESULT Connect(ComPointer<IWbemServices>& services) {
  void* made = nullptr;
  HRESULT result =
      CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemLocator, &made);
  if (FAILED(result)) return result;
  const ComPointer<IWbemLocator> locator(static_cast<IWbemLocator*>(made));
  IWbemServices* connected = nullptr;
  result = locator->ConnectServer(MakeBstr(L"ROOT\\CIMV2").get(), nullptr, nullptr, nullptr,
                                  WBEM_FLAG_CONNECT_USE_MAX_WAIT, nullptr, nullptr, &connected);
  if (FAILED(result)) return result;
  services.reset(connected);
  // The service acts in the name of this user, whatever the host's own settings of COM.
  CoSetProxyBlanket(connected, RPC_C_AUTHN_WINNT, RPC_C_AUTHZ_NONE, nullptr, RPC_C_AUTHN_LEVEL_CALL,
                    RPC_C_IMP_LEVEL_IMPERSONATE, nullptr, EOAC_NONE);
  return S_OK;
}

HRESULT ReadInstances(const Question& question, std::vector<std::vector<Text>>& instances) {
  ComPointer<IWbemServices> services;
  HRESULT result = Connect(services);
  if (FAILED(result)) return result;
  IEnumWbemClassObject* found = nullptr;
  result =
      services->ExecQuery(MakeBstr(L"WQL").get(), MakeBstr(question.query).get(),
                          WBEM_FLAG_FORWARD_ONLY | WBEM_FLAG_RETURN_IMMEDIATELY, nullptr, &found);
  if (FAILED(result)) return result;
  const ComPointer<IEnumWbemClassObject> rows(found);
  for (;;) {
    IWbemClassObject* next = nullptr;
    ULONG count = 0;
    result = rows->Next(static_cast<LONG>(WBEM_INFINITE), 1, &next, &count);
    if (FAILED(result) || count == 0) return result;
    const ComPointer<IWbemClassObject> row(next);
    std::vector<Text>& texts = instances.emplace_back();
    for (const std::wstring& property : question.properties)
      texts.push_back(TextOf(*row, property));
  }
}

/// Asks on a thread of its own, which may use COM as it needs. One question at a time: Wine's
/// service fills its tables again for each, under the hands of those who read them.
Answer Ask(const Question& question) {
  static std::mutex one_at_a_time;
  const std::scoped_lock lock(one_at_a_time);
  const ComUse com(COINIT_MULTITHREADED);
  Answer answer;
  answer.result = ReadInstances(question, answer.instances);
  return answer;
}

Question QuestionFor(const ClassRow& row, Names properties) {
  Question question;
  for (const std::string_view name : properties) {
    const bool known = std::ranges::find(row.properties, name) != row.properties.end();
    question.properties.push_back(known ? Wide(FromUtf8(name)) : std::wstring());
    if (!known) continue;
    question.query += (question.query.empty() ? L"SELECT " : L", ") + question.properties.back();
  }
  if (question.query.empty()) question.query = L"SELECT *";
  question.query += L" FROM " + Wide(FromUtf8(row.name));
  if (!row.condition.empty()) question.query += L" WHERE " + Wide(FromUtf8(row.condition));
  return question;
}

class WindowsManagement final : public Management {
 public:
  std::vector<ManagementClass> Classes() override {
    std::vector<ManagementClass> classes;
    for (const ClassRow& row : kClasses) {
      classes.push_back({row.name, {row.properties.begin(), row.properties.end()}});
    }
    return classes;
  }

  std::vector<std::vector<Text>> Read(std::string_view class_name, Names properties) override {
    const auto* const row = std::ranges::find(kClasses, class_name, &ClassRow::name);
    if (row == kClasses.end()) return {};
    const std::string name(class_name);
    auto answer = ResultWithin<Answer>(
        [question = QuestionFor(*row, properties)] { return Ask(question); }, kLimit);
    if (!answer) {
      throw RunTimeError(Error::kPermissionDenied,
                         "the management service did not tell " + name + " within 10 seconds");
    }
    if (FAILED(answer->result)) {
      throw RunTimeError(Error::kCannotCreateObject,
                         "the management service cannot be asked for " + name);
    }
    return std::move(answer->instances);
  }
};

}  // namespace

std::shared_ptr<Management> SystemManagement(MachineFiles /*files*/) {
  return std::make_shared<WindowsManagement>();
}

}  // namespace ZQ7Standard
