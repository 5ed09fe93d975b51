#ifndef ZQ7STANDARD_TESTS_SUPPORT_FAKES_H_
#define ZQ7STANDARD_TESTS_SUPPORT_FAKES_H_

#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/block_cipher.h>
#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <ZQ7Standard/platform/message_box.h>
#include <ZQ7Standard/platform/random_source.h>
#include <ZQ7Standard/platform/registry.h>
#include <ZQ7Standard/platform/serial_port.h>

#include <array>
#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace ZQ7Standard {

inline constexpr DateConvention kMdy{FieldOrder::kMonthFirst, Era::kGregorian};
inline constexpr DateConvention kDmy{FieldOrder::kDayFirst, Era::kGregorian};
inline constexpr DateConvention kMdyBe{FieldOrder::kMonthFirst, Era::kBuddhist};
inline constexpr DateConvention kDmyBe{FieldOrder::kDayFirst, Era::kBuddhist};
inline constexpr std::array kConventions = {kMdy, kDmy, kMdyBe, kDmyBe};

/// The tests' current moment: Monday 2024-01-15 09:30.
OleDate TestNow();

/// An object on a machine with that convention and clock.
StandardObject ObjectWith(DateConvention convention, OleDate now = TestNow());

/// The convention as rows show it, by its date format.
std::string NameOf(DateConvention convention);

/// Returns `draw` if it was reseeded since the last draw, otherwise a number that no generator
/// returns.
class FakeRandomSource final : public RandomSource {
 public:
  explicit FakeRandomSource(float draw) : draw_(draw) {}
  void Reseed() override { reseeded_ = true; }
  float Next() override { return std::exchange(reseeded_, false) ? draw_ : -1; }

 private:
  float draw_;
  bool reseeded_ = false;
};

/// Makes block ciphers that record in `calls` what they see, from "made" to "gone". Their text is
/// "#" and the plain text, padded with a zero byte. They cannot decode a text without "#", and
/// decrypt nothing that ends in "wrong".
BlockCipherFactory FakeBlockCipher(std::string& calls);

/// Records what is set in `calls`, then passes it to `on_call`.
struct RecordingSerialPort final : SerialPort {
  void SetCommPort(std::int16_t port) override { Record(" port " + std::to_string(port)); }
  void SetSettings(TextView settings) override { Record(" settings " + Utf8(settings)); }
  void SetInputLen(std::int16_t length) override { Record(" input " + std::to_string(length)); }
  void SetPortOpen(bool open) override { Record(open ? " open" : " close"); }
  void SetOutput(TextView text) override { Record(" output " + Utf8(text)); }
  bool PortOpen() const override { return false; }
  void Record(const std::string& call) { on_call(calls += call); }
  std::string calls;
  std::function<void(const std::string&)> on_call;
};

/// What a `FakeRegistry` saw, and how it should answer.
struct RegistryScript {
  std::string calls;
  std::string failing;  // the call that returns nothing: "Open", "Create", "Query" or "Set"
  bool raises = false;  // instead of returning nothing
};

/// A registry that returns the number 7 for every query.
std::shared_ptr<Registry> FakeRegistry(RegistryScript& script);

/// The number of the run-time error that `call` raises, or 0.
int ErrorOf(const std::function<void()>& call);

/// "2024-01-15", or "2024-01-15 09:30:00" for a date with a time of day.
std::string IsoText(OleDate date);

// How failures print values.
void PrintTo(OleDate date, std::ostream* stream);
void PrintTo(Currency amount, std::ostream* stream);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_FAKES_H_
