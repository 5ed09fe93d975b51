#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/block_cipher.h>
#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <ZQ7Standard/platform/message_box.h>
#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/registry.h>
#include <ZQ7Standard/platform/serial_port.h>

#include <memory>
#include <string>

#include "failures.h"
#include "host_table.h"
#include "objects.h"
#include "values.h"

namespace ZQ7C {
namespace {

using namespace ZQ7Standard;

class HostClock final : public Clock {
 public:
  explicit HostClock(const zq7_clock& table) : table_(table) {}
  OleDate Now() override {
    zq7_value now = {};
    CallHost(table_->now, table_->context, &now);
    return ToDate(&now);
  }

 private:
  HostTable<zq7_clock> table_;
};

class HostConvention final : public DateConventionSource {
 public:
  explicit HostConvention(const zq7_convention& table) : table_(table) {}
  DateConvention Current() override {
    int32_t day_first = 0;
    int32_t buddhist = 0;
    CallHost(table_->current, table_->context, &day_first, &buddhist);
    return {.order = day_first != 0 ? FieldOrder::kDayFirst : FieldOrder::kMonthFirst,
            .era = buddhist != 0 ? Era::kBuddhist : Era::kGregorian};
  }

 private:
  HostTable<zq7_convention> table_;
};

class HostMessageBox final : public MessageBox {
 public:
  explicit HostMessageBox(const zq7_message_box& table) : table_(table) {}
  void Show(const Message& message) override {
    const zq7_value title = View(message.title);
    const zq7_value text = View(message.text);
    CallHost(table_->show, table_->context, &title, &text,
             message.icon == MessageIcon::kCritical ? 1 : 0);
  }

 private:
  HostTable<zq7_message_box> table_;
};

class HostSerialPort final : public SerialPort {
 public:
  explicit HostSerialPort(const zq7_serial_port& table) : table_(table) {}
  void SetCommPort(std::int16_t port) override {
    CallHost(table_->set_comm_port, table_->context, port);
  }
  void SetSettings(TextView settings) override {
    const zq7_value value = View(settings);
    CallHost(table_->set_settings, table_->context, &value);
  }
  void SetInputLen(std::int16_t length) override {
    CallHost(table_->set_input_len, table_->context, length);
  }
  void SetPortOpen(bool open) override {
    CallHost(table_->set_port_open, table_->context, open ? 1 : 0);
  }
  void SetOutput(TextView text) override {
    const zq7_value value = View(text);
    CallHost(table_->set_output, table_->context, &value);
  }
  bool PortOpen() const override {
    int32_t open = 0;
    CallHost(table_->port_open, table_->context, &open);
    return open != 0;
  }

 private:
  HostTable<zq7_serial_port> table_;
};

class HostPicture final : public PrintPicture {
 public:
  explicit HostPicture(const zq7_picture& table) : table_(table) {}
  float Width() override { return Size(table_->width); }
  float Height() override { return Size(table_->height); }
  std::string_view Picture() override {
    const void* bytes = nullptr;
    size_t size = 0;
    CallHost(table_->bytes, table_->context, &bytes, &size);
    Require(bytes != nullptr || size == 0, "a picture without bytes");
    return {static_cast<const char*>(bytes), size};
  }

 private:
  float Size(zq7_status (*read)(void*, float*)) {
    float millimetres = 0;
    CallHost(read, table_->context, &millimetres);
    return millimetres;
  }

  HostTable<zq7_picture> table_;
};

DriveMap DrivesOf(const zq7_service_table& table) {
  Require(table.drives != nullptr || table.drive_count == 0, "no drives");
  DriveMap drives;
  for (size_t i = 0; i < table.drive_count; ++i) {
    const zq7_drive& drive = table.drives[i];
    Require('A' <= drive.letter && drive.letter <= 'Z', "a drive that is not a capital letter");
    Require(drive.folder != nullptr, "a drive without a folder");
    drives[drive.letter] = drive.folder;
  }
  return drives;
}

SerialDevices DevicesOf(const zq7_service_table& table) {
  Require(table.serial_devices != nullptr || table.serial_device_count == 0, "no serial devices");
  SerialDevices devices;
  for (size_t i = 0; i < table.serial_device_count; ++i) {
    const auto& [port, device] = table.serial_devices[i];
    Require(0 < port && port <= INT16_MAX, "a serial port's number outside 1 to 32767");
    Require(device != nullptr, "a serial port without a device");
    devices[static_cast<std::int16_t>(port)] = device;
  }
  return devices;
}

void CheckFunctions(const zq7_service_table& table) {
  if (table.clock != nullptr) CheckTable(table.clock, &zq7_clock::now);
  if (table.convention != nullptr) CheckTable(table.convention, &zq7_convention::current);
  if (table.message_box != nullptr) CheckTable(table.message_box, &zq7_message_box::show);
}

BlockCipherFactory SodiumCipher() {
  BlockCipherFactory cipher = BuiltInBlockCipher();
  if (!cipher)
    throw RunTimeError(Error::kCannotCreateObject, "the library was built without libsodium");
  return cipher;
}

Services ServicesOf(const zq7_service_table& table) {
  CheckTable(&table);
  CheckFunctions(table);
  Services services = {.drives = DrivesOf(table)};
  services.serial_devices = DevicesOf(table);
  if ((table.flags & ZQ7_SODIUM_CIPHER) != 0) services.block_cipher = SodiumCipher();
  if ((table.flags & ZQ7_MEMORY_REGISTRY) != 0) services.registry = MemoryRegistry();
  // Nothing fails from here on, so that a refused table is not released.
  if (table.clock != nullptr) services.clock = std::make_shared<HostClock>(*table.clock);
  if (table.convention != nullptr) {
    services.date_convention = std::make_shared<HostConvention>(*table.convention);
  }
  if (table.message_box != nullptr) {
    services.message_box = std::make_shared<HostMessageBox>(*table.message_box);
  }
  return services;
}

}  // namespace
}  // namespace ZQ7C

zq7_status zq7_services_create(const zq7_service_table* table, zq7_services** services) {
  return ZQ7C::Guarded([&] {
    ZQ7C::Require(services != nullptr, "no place for the services");
    *services = nullptr;
    ZQ7C::Require(table != nullptr, "no table of services");
    *services = new zq7_services{ZQ7C::ServicesOf(*table)};
  });
}

void zq7_services_release(zq7_services* services) {
  delete services;
}

zq7_status zq7_wrap_serial_port(const zq7_serial_port* table, zq7_object** object) {
  return ZQ7C::Made(object, [&] {
    ZQ7C::CheckTable(table, &zq7_serial_port::set_comm_port, &zq7_serial_port::set_settings,
                     &zq7_serial_port::set_input_len, &zq7_serial_port::set_port_open,
                     &zq7_serial_port::set_output, &zq7_serial_port::port_open);
    return ZQ7Standard::Automation::Wrap(std::make_shared<ZQ7C::HostSerialPort>(*table));
  });
}

zq7_status zq7_wrap_picture(const zq7_picture* table, zq7_object** object) {
  return ZQ7C::Made(object, [&] {
    ZQ7C::CheckTable(table, &zq7_picture::width, &zq7_picture::height, &zq7_picture::bytes);
    return ZQ7Standard::Automation::Wrap(std::make_shared<ZQ7C::HostPicture>(*table));
  });
}

zq7_status zq7_picture_of_file(const zq7_value* path, const zq7_services* services,
                               zq7_object** object) {
  return ZQ7C::Made(object, [&] {
    const auto drives = services == nullptr ? ZQ7Standard::DriveMap() : services->services.drives;
    return ZQ7Standard::Automation::Wrap(
        ZQ7Standard::PictureFromFile(ZQ7C::ToTextView(path), drives));
  });
}
