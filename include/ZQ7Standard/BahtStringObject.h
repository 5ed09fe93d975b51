#ifndef ZQ7STANDARD_BAHTSTRINGOBJECT_H_
#define ZQ7STANDARD_BAHTSTRINGOBJECT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>

namespace ZQ7Standard {

/// Money amounts in Thai or English words.
///
/// For cheques, receipts and invoices.
///
/// Amounts are rounded to satang as they print: to 15 significant digits, then half away
/// from zero. Infinities and NaN give the empty text; no operation raises.
///
/// An instance keeps the unit words of its last `MoneyText`, and `MoneyTextT`
/// uses them; so an instance belongs to one thread at a time. Distinct
/// instances are independent.
//
// The operations are defined in src/numbers/money_words.cc.
class ZQ7STANDARD_EXPORT BahtStringObject {
 public:
  /// An amount in words, in any currency.
  ///
  /// 121.50 is "หนึ่งร้อยยี่สิบเอ็ดบาทห้าสิบสตางค์", with `useEnglish` "One hundred
  /// twenty one baht and fifty satang". `useBreak` puts "=" at both ends. Empty beyond
  /// 9999999999999.99 either way.
  ///
  /// `NewUnit` replaces the currency word, in lower case in English, without a
  /// plural. `NewSubUnit` has no effect: the sub-unit follows from the unit,
  /// "สตางค์" for "บาท", "satang" for "baht" and "THB" in any case, "cent" for
  /// any other.
  ///
  /// 0 is "ศูนย์บาทถ้วน" whatever the unit and "Zerobaht" in English, both without "=". A
  /// Thai amount below 1 has no unit word, so a negative one is only its digits and
  /// "ถ้วน": -5.25 is "ห้าถ้วน". Any fraction adds the sub-unit, even one that rounds away:
  /// 5.001 is "ห้าบาทสตางค์". So round a computed amount first (docs/surprises.md).
  Text MoneyText(double inDouble, bool useBreak = false, bool useEnglish = false,
                 TextView NewUnit = {}, TextView NewSubUnit = {});

  /// The same as `MoneyText`.
  Text BahtString(double inDouble, bool useBreak = false, bool useEnglish = false,
                  TextView NewUnit = {}, TextView NewSubUnit = {});

  /// An amount in Thai words with the unit words of the last `MoneyText`.
  ///
  /// The last on this instance; on a new one they are "บาท" and "สตางค์". The amount has
  /// no bound.
  Text MoneyTextT(double inDouble);
  /// The same as `MoneyTextT`.
  Text BahtStringT(double inDouble);

  /// An amount in English words with baht and satang.
  ///
  /// The amount has no bound; groups from 10^15 up have " ?" for their scale. 0 is "Zero
  /// baht"; 0.56 is " baht and fifty six satang", which begins with a blank
  /// (docs/surprises.md).
  Text MoneyTextE(double inDouble);
  /// The same as `MoneyTextE`.
  Text BahtStringE(double inDouble);

  /// Always the empty text.
  ///
  /// Month names come from `StandardObject`.
  Text MonthText(std::int16_t MonthNumber, bool FullText, bool UseThai) const;

  /// Who made the library.
  Text About() const;

 private:
  Text unit_text_;
  Text sub_unit_text_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_BAHTSTRINGOBJECT_H_
