#include "formats/serial_settings.h"

#include <algorithm>
#include <array>

#include "base/ascii.h"
#include "base/fields.h"
#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

/// What a field may be, and its meaning.
template <typename Meaning>
struct Choice {
  TextView field;
  Meaning meaning;
};

constexpr std::array kSpeeds = std::to_array<std::uint32_t>(
    {50,      75,      110,     134,     150,     200,     300,     600,    1200,
     1800,    2400,    4800,    9600,    14400,   19200,   28800,   38400,  56000,
     57600,   115200,  128000,  230400,  256000,  460800,  500000,  576000, 921600,
     1000000, 1152000, 1500000, 2000000, 2500000, 3000000, 3500000, 4000000});

constexpr std::array kParities = std::to_array<Choice<Parity>>({{u"N", Parity::kNone},
                                                                {u"O", Parity::kOdd},
                                                                {u"E", Parity::kEven},
                                                                {u"M", Parity::kMark},
                                                                {u"S", Parity::kSpace}});

constexpr std::array kDataBits =
    std::to_array<Choice<int>>({{u"4", 4}, {u"5", 5}, {u"6", 6}, {u"7", 7}, {u"8", 8}});

constexpr std::array kStopBits = std::to_array<Choice<StopBits>>(
    {{u"1", StopBits::kOne}, {u"1.5", StopBits::kOneAndHalf}, {u"2", StopBits::kTwo}});

/// Stores the meaning of `field` in `value`; false if it is not among `choices`.
template <typename Meaning>
bool Choose(const auto& choices, TextView field, Meaning& value) {
  const auto choice = std::ranges::find_if(
      choices, [&](TextView name) { return EqualsIgnoringAsciiCase(name, field); },
      &Choice<Meaning>::field);
  if (choice == choices.end()) return false;
  value = choice->meaning;
  return true;
}

bool ChooseSpeed(TextView field, std::uint32_t& baud) {
  const auto speed = std::ranges::find_if(
      kSpeeds, [&](std::uint32_t value) { return ShortestText({.digits = value}) == field; });
  if (speed == kSpeeds.end()) return false;
  baud = *speed;
  return true;
}

}  // namespace

std::optional<SerialSettings> ReadSerialSettings(TextView text) {
  if (std::ranges::count(text, u',') != 3) return std::nullopt;
  SerialSettings settings;
  const bool read = ChooseSpeed(TakeField(text, u','), settings.baud) &&
                    Choose(kParities, TakeField(text, u','), settings.parity) &&
                    Choose(kDataBits, TakeField(text, u','), settings.data_bits) &&
                    Choose(kStopBits, text, settings.stop_bits);
  return read ? std::optional(settings) : std::nullopt;
}

bool CanBeSent(const SerialSettings& settings) {
  const StopBits longer = settings.data_bits == 5 ? StopBits::kOneAndHalf : StopBits::kTwo;
  return settings.data_bits >= 5 &&
         (settings.stop_bits == StopBits::kOne || settings.stop_bits == longer);
}

}  // namespace ZQ7Standard
