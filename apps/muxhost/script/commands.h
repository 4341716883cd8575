#pragma once

#include <span>
#include <string>

#include "muxhost/script/desk.h"
#include "muxhost/script/parser.h"

namespace quorvel::muxhost {

/// Carries out one line of a script, its command first. Throws std::exception, whose text is the
/// reason, when it cannot be carried out.
void Execute(Desk& desk, std::span<const std::string> words);

namespace commands {

using Words = std::span<const std::string>;

// The device and the host.
void Device(Desk& desk, Words words);
void Host(Desk& desk, Words words);
void SpeakLanguage(Desk& desk, Words words);
void Download(Desk& desk, Words words);
void Upload(Desk& desk, Words words);
void GoesAlong(Desk& desk, Words words);
void PcTime(Desk& desk, Words words);
void Save(Desk& desk, Words words);
void Restore(Desk& desk, Words words);
void Defaults(Desk& desk, Words words);
void Open(Desk& desk, Words words);
void New(Desk& desk, Words words);
void Connect(Desk& desk, Words words);
void Compare(Desk& desk, Words words);
void FaultOnLink(Desk& desk, Words words);
void Zones(Desk& desk, Words words);
void Undo(Desk& desk, Words words);
void Redo(Desk& desk, Words words);

// The user at the screen.
void Menu(Desk& desk, Words words);
void Choose(Desk& desk, Words words);
void Dismiss(Desk& desk, Words words);
void Click(Desk& desk, Words words);
void Type(Desk& desk, Words words);
void Select(Desk& desk, Words words);
void Slide(Desk& desk, Words words);
void Pick(Desk& desk, Words words);
void Press(Desk& desk, Words words);
void Release(Desk& desk, Words words);
void Mark(Desk& desk, Words words);
void StepBack(Desk& desk, Words words);
void StepForth(Desk& desk, Words words);
void PutBack(Desk& desk, Words words);
void Empty(Desk& desk, Words words);
void Paste(Desk& desk, Words words);
void Tab(Desk& desk, Words words);
void Close(Desk& desk, Words words);
void AnswerNext(Desk& desk, Words words);
void Wait(Desk& desk, Words words);

// What there is to see.
void Show(Desk& desk, Words words);
void Pages(Desk& desk, Words words);
void Help(Desk& desk, Words words);
void Report(Desk& desk, Words words);
void MenuItems(Desk& desk, Words words);
void Modified(Desk& desk, Words words);
void Settings(Desk& desk, Words words);
void SetSetting(Desk& desk, Words words);
void DescribeThem(Desk& desk, Words words);
void Check(Desk& desk, Words words);
void Diff(Desk& desk, Words words);
void Review(Desk& desk, Words words);
void Find(Desk& desk, Words words);
void List(Desk& desk, Words words);
void Export(Desk& desk, Words words);
void DeviceBlock(Desk& desk, Words words);
void ImageBlock(Desk& desk, Words words);
void Events(Desk& desk, Words words);
void Messages(Desk& desk, Words words);

/// Throws ScriptError while a modal dialog locks the host's window.
void RequireUnlocked(const Desk& desk);
/// Throws ScriptError without a device.
void RequireDevice(const Desk& desk);

/// The device that a line describes by its keys; what of it no device can be throws. TakeSetup
/// takes what a device is from the factory, and leaves the rest.
[[nodiscard]] SimulatedDevice TakeDevice(Desk& desk, Words words);
[[nodiscard]] DeviceSetup TakeSetup(const Desk& desk, Options& options);
/// Opens the editor in which these settings stand, and prints where the focus is then.
void OpenEditorAt(Desk& desk, const SettingPosition& at, std::span<const std::string> settings);

}  // namespace commands

}  // namespace quorvel::muxhost
