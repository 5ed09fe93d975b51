#ifndef ZQ7STANDARD_TESTS_SUPPORT_FAKES_H_
#define ZQ7STANDARD_TESTS_SUPPORT_FAKES_H_

#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/message_box.h>
#include <ZQ7Standard/platform/serial_port.h>

#include <array>
#include <functional>
#include <ostream>
#include <string>
#include <utility>

namespace ZQ7Standard {

inline constexpr DateConvention kMdy{FieldOrder::kMonthFirst, Era::kGregorian};
inline constexpr DateConvention kDmy{FieldOrder::kDayFirst, Era::kGregorian};
inline constexpr DateConvention kMdyBe{FieldOrder::kMonthFirst, Era::kBuddhist};
inline constexpr DateConvention kDmyBe{FieldOrder::kDayFirst, Era::kBuddhist};
inline constexpr std::array kConventions = {kMdy, kDmy, kMdyBe, kDmyBe};

/// The moment that the tests run at: Monday 2024-01-15 09:30.
OleDate TestNow();

/// An object on a machine with that convention and clock.
StandardObject ObjectWith(DateConvention convention, OleDate now = TestNow());

/// Gives `draw` whenever it was reseeded since the last draw, and otherwise a
/// number that no generator gives.
class FakeRandomSource final : public RandomSource {
 public:
  explicit FakeRandomSource(float draw) : draw_(draw) {}
  void Reseed() override { reseeded_ = true; }
  float Next() override { return std::exchange(reseeded_, false) ? draw_ : -1; }

 private:
  float draw_;
  bool reseeded_ = false;
};

/// Makes block ciphers that write what they see to `calls`, from "made" to "gone".
/// Their text is "#" and the plain text, padded with a zero byte. They cannot decode a
/// text without "#", and decrypt nothing that ends in "wrong".
BlockCipherFactory FakeBlockCipher(std::string& calls);

/// Writes what it shows to `shown`, as "critical, ok: title: text".
class RecordingMessageBox final : public MessageBox {
 public:
  explicit RecordingMessageBox(std::string& shown) : shown_(shown) {}
  void Show(const Message& message) override;

 private:
  std::string& shown_;
};

/// Writes what is set to `calls`, and runs `on_call` with the number of the call, from 1.
class RecordingSerialPort final : public SerialPort {
 public:
  RecordingSerialPort(std::string& calls, std::function<void(int)> on_call)
      : calls_(calls), on_call_(std::move(on_call)) {}
  void SetCommPort(std::int16_t port) override { Record("port " + std::to_string(port)); }
  void SetSettings(TextView settings) override { Record("; settings " + Utf8(settings)); }
  void SetInputLen(std::int16_t length) override { Record("; input " + std::to_string(length)); }
  void SetPortOpen(bool open) override { Record(open ? "; open" : "; close"); }
  void SetOutput(TextView text) override { Record("; output " + Utf8(text)); }
  bool PortOpen() const override { return false; }

 private:
  void Record(const std::string& call);

  std::string& calls_;
  std::function<void(int)> on_call_;
  int count_ = 0;
};

/// The run-time error number that `call` raises; 0 when it raises none.
int ErrorOf(const std::function<void()>& call);

/// "2024-01-15", or "2024-01-15 09:30:00" for a date with a time of day.
std::string IsoText(OleDate date);

// How values print in a failure.
void PrintTo(OleDate date, std::ostream* stream);
void PrintTo(Currency amount, std::ostream* stream);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_FAKES_H_
