#include "options.h"

#include "option_table.h"

namespace {

constexpr int kLargest = 100000;

} // namespace

std::optional<DemoOptions> ParseDemoOptions(const std::vector<std::wstring>& arguments, std::wstring& error) {
    DemoOptions options;
    std::wstring direction;
    std::wstring bars;
    std::wstring memory;
    std::vector<std::wstring> words;
    const bool isUnderstood = OptionTable()
                                  .AddText(L"--lang", options.language)
                                  .AddChoice(L"--skin", {L"black", L"silver"}, options.skin)
                                  .AddChoice(L"--mode", {L"browse", L"edit", L"print"}, options.mode)
                                  .AddText(L"--open", options.mapFile)
                                  .AddText(L"--screenshot", options.screenshot)
                                  .AddText(L"--record", options.record)
                                  .AddNumber(L"--record-pause", 0, kLargest, options.recordPause)
                                  .AddText(L"--watch", options.watch)
                                  .AddFlag(L"--follow", options.followsFiles)
                                  .AddFlag(L"--stay", options.stays)
                                  .AddChoice(L"--direction", {L"ltr", L"rtl"}, direction)
                                  .AddChoice(L"--bars", {L"ribbon", L"classic"}, bars)
                                  .AddChoice(L"--memory", {L"kept", L"none"}, memory)
                                  .AddText(L"--settings", options.settings)
                                  .AddSize(L"--size", kLargest, options.width, options.height)
                                  .AddNumber(L"--scale", 0, kLargest, options.scalePercent)
                                  .AddNumber(L"--category", 0, kLargest, options.category)
                                  .Read(arguments, 0, words, error);
    if (!direction.empty()) {
        options.isRightToLeft = direction == L"rtl";
    }
    if (!bars.empty()) {
        options.showsClassicBars = bars == L"classic";
    }
    // Pictures show what their command line says.
    options.isFresh = memory == L"none" || (!options.screenshot.empty() && options.settings.empty());
    return isUnderstood ? std::optional(options) : std::nullopt;
}
