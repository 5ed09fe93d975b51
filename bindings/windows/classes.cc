#include "classes.h"

#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/BahtStringObject.h>
#include <ZQ7Standard/BitByteObject.h>
#include <ZQ7Standard/CImageInfo.h>
#include <ZQ7Standard/DiskObject.h>
#include <ZQ7Standard/GridValueObject.h>
#include <ZQ7Standard/PeripheralObject.h>
#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/StandardObject.h>

#include <array>

#include "early_binding.h"
// The identifiers of the type library are defined here.
#include <initguid.h>

#include "zq7standard_server.h"

namespace ZQ7Windows {

void RaiseAt(const EarlyPlace& place, ZQ7Standard::Error error,
             const ZQ7Standard::ErrorInput& input) {
  const auto& operation = *place.server.Catalogued().At(place.id).operation;
  ZQ7Standard::Raise(error, {operation.name, operation.parameters[place.parameter].name}, input);
}

namespace {

using ZQ7Standard::ASCIIObject;
using ZQ7Standard::BahtStringObject;
using ZQ7Standard::BitByteObject;
using ZQ7Standard::CImageInfo;
using ZQ7Standard::DiskObject;
using ZQ7Standard::GridValueObject;
using ZQ7Standard::PeripheralObject;
using ZQ7Standard::PrintObject;
using ZQ7Standard::RegistryObject;
using ZQ7Standard::SerialPort;
using ZQ7Standard::StandardObject;

template <typename Made>
IUnknown* NewServer(const ServerRow& row) {
  static const Members members(row.name);
  return static_cast<IDispatch*>(new Made(row, members));
}

#include "classes.inc"

}  // namespace

std::span<const ServerRow> Servers() {
  return kServers;
}

const GUID& LibraryId() {
  return LIBID_ZQ7Standard;
}

}  // namespace ZQ7Windows
