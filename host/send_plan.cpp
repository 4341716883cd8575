#include "host/send_plan.h"

namespace quorvel {

namespace {

bool IsMacroBlock(int number) { return number >= 150 && number <= 181; }
bool IsNeverSent(int number) { return number == 194 || number == 218; }

}  // namespace

std::vector<Byte> PlanAllBlocks(const BlockImage& image, bool include_macros) {
  std::vector<Byte> plan;
  const int last = image.BlkCountOrZero();
  for (int number = 1; number <= last; ++number) {
    if (IsNeverSent(number) || !image.Counts(number)) continue;
    if (IsMacroBlock(number) && !include_macros && number != last) continue;
    plan.push_back(static_cast<Byte>(number));
  }
  return plan;
}

std::vector<Byte> PlanListedBlocks(const clsBlkSave& list, const BlockImage& image,
                                   bool include_macros) {
  std::vector<Byte> plan;
  for (Byte i = 0; i < list.BlkSavIdx(); ++i) {
    const Byte number = list.BlkNumSav(i);
    if (IsNeverSent(number) || !image.Counts(number)) continue;
    if (IsMacroBlock(number) && !include_macros) continue;
    plan.push_back(number);
  }
  return plan;
}

}  // namespace quorvel
