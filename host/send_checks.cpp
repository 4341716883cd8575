#include "host/send_checks.h"

#include "host/combined_exchange.h"
#include "host/model_catalogue.h"
#include "host/send_plan.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {

/// The same words as in the message box, with the reason behind them.
std::string DoesNotMatch(const std::string& reason) {
  return std::string(BuiltInText(txt::kDataDoesNotMatch)) + ": " + reason + ".";
}

/// What the send dialog does not let its user choose.
std::string WhyNotChosen(const Context& context, const SendChoice& choice) {
  if (!choice.IncludeData && !context.host.ComboMode) {
    return "In the exchange of single blocks the data cannot be left out.";
  }
  if (!choice.IncludeData && !choice.IncludeMacros) return "Neither data nor macros are chosen.";
  if (choice.IncludeData && !choice.all_blocks &&
      PlanListedBlocks(context.device.env.blocks, context.device.BlkImage, choice.IncludeMacros)
          .empty()) {
    return "There is no modified block to send.";
  }
  return {};
}

std::string WhyMacrosDoNotFit(Context& context, const SendChoice& choice) {
  if (!choice.IncludeMacros || choice.accept_macro_size || !context.host.ComboMode) return {};
  ProvideComboArray(context.device, context.host.combo_sizes);
  if (!MacroSizeDiffers(context)) return {};
  return "Macro records have " + std::to_string(context.host.combo_sizes.ComboMacroSize) +
         " bytes in the device and " +
         std::to_string(context.device.ComboArray.Header().MacroRecSize) + " in the data.";
}

}  // namespace

SendBasis PresentBasis(const Context& context) {
  return {context.device.ImageGeneration(), context.host.ComboMode, context.host.HostType,
          context.host.HostCommId, context.host.connected};
}

bool FamilyFits(const Context& context) {
  const auto host = context.host.HostType;
  if (context.host.HostCommId != 0) return true;
  return context.device.env.identity.IsTriplex() ? host != 16 : host != 48 && host != 112;
}

bool MacroSizeDiffers(const Context& context) {
  return context.host.combo_sizes.ComboMacroSize != context.device.ComboArray.Header().MacroRecSize;
}

std::string WhyDataDoesNotFit(const Context& context) {
  if (!FamilyFits(context)) {
    return DoesNotMatch("model code " + std::to_string(context.device.env.identity.ModelCode) +
                        " is none of device family " + std::to_string(context.host.HostType));
  }
  const auto mismatch = FindIdentityMismatch(context);
  if (!mismatch) return {};
  return DoesNotMatch("it is of " + mismatch->of_image + ", the device is " + mismatch->connected);
}

std::string WhyNotSent(Context& context, const SendChoice& choice) {
  if (!context.device.HasImage()) return "There is no configuration to send.";
  std::string why = WhyDataDoesNotFit(context);
  if (why.empty()) why = WhyNotChosen(context, choice);
  return why.empty() ? WhyMacrosDoNotFit(context, choice) : why;
}

}  // namespace quorvel
