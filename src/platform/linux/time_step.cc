#include "platform/linux/time_step.h"

#include <linux/magic.h>

#include <algorithm>
#include <array>

namespace ZQ7Standard {
namespace {

using namespace std::chrono_literals;

struct StepRow {
  std::uint32_t file_system_type;
  std::chrono::nanoseconds step;
};

constexpr std::array<StepRow, 5> kSteps = {{
    {MSDOS_SUPER_MAGIC, 2s},
    {EXFAT_SUPER_MAGIC, 10ms},
    {SMB_SUPER_MAGIC, 100ns},
    {CIFS_SUPER_MAGIC, 100ns},
    {SMB2_SUPER_MAGIC, 100ns},
}};

}  // namespace

std::chrono::nanoseconds TimeStepOf(std::uint32_t file_system_type) {
  const auto* const row = std::ranges::find(kSteps, file_system_type, &StepRow::file_system_type);
  return row != kSteps.end() ? row->step : 1ns;
}

}  // namespace ZQ7Standard
