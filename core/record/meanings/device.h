#pragma once

#include "core/record/meanings/words.h"

namespace quorvel {

struct Language : Words<"English", "French", "German", "Italian", "Russian", "Polish", "Czech",
                        "Finnish", "Hungarian", "Slovak", "Spanish", "Dutch", "Danish"> {};
struct KeyboardLock : Words<"Unlock Keyboard", "Lock Keyboard"> {};

// Dwells. The byte of the playback dwell is another's on other models.

struct Dwell : Within<1, 30, Seconds> {};
struct MultiscreenDwell : Where<&Identity::IsMultiplexer, Within<1, 250, Seconds>, Dwell> {};
struct PlaybackDwell : Where<&Identity::IsMultiplexer, Dwell, Seconds> {};

// Ports.

inline bool HasProprietaryRate(const Identity& id) { return id.VariantChar == '2'; }
struct SlowRates : Words<"1200", "2400", "4800", "9600"> {};
struct FastRates : Words<"9600", "19200", "38400", "57600"> {};
struct AllRates : Words<"1200", "2400", "4800", "9600", "19200", "38400", "57600"> {};
struct AllRatesAndOne
    : Words<"1200", "2400", "4800", "9600", "19200", "38400", "57600", "Proprietary"> {};
struct FirstPort : Where<&Identity::IsTriplex, AllRates, FastRates> {};
struct SecondPort
    : Where<&Identity::IsTriplex, Where<HasProprietaryRate, AllRatesAndOne, AllRates>, SlowRates> {
};

// Archive.

struct ArchiveMode : Where<&Identity::IsTriplex, OffOn,
                           Words<"Archiving OFF", "Selective Archive", "Restore from Archive",
                                 "Background Archive">> {};
struct ArchiveSetting : Words<"No Overwrite", "Write Once", "Continuous"> {};
struct ArchivePort : Where<&Identity::IsTriplex, Words<"SCSI", "1394">> {};

// Telemetry. Some firmware calls the values of the first two "Legacy" and "Current".

struct TelemetryProtocol : Words<"Standard", "Alternate"> {};
struct PresetModes : Words<"Standard", "Enhanced"> {};
struct PresetProgramming : Words<"Enabled", "Disabled"> {};
struct CameraLine : Words<"AC", "DC"> {};

// A multiplexer's recorder. What the formats are called depends on the variant, and of the first on
// whether it is the older device's.

struct VideoType : Words<"Composite Video", "SVHS Video"> {};
struct SwitchingEdge : Words<"Positive Edge", "Negative Edge"> {};
struct SignalLevel : Words<"Type A", "Type B", "Type C"> {};
struct TapeFormat : Within<0, 2> {};
struct OlderFormat : Where<&Identity::IsMultiplexer, Within<0, 1>> {};

struct FieldOrFrame : Words<"Field", "Frame"> {};
struct DetectionType
    : Where<&Identity::Model4L, Words<"ACTIVITY">, Words<"ACTIVITY", "INTRUSION">> {};

}  // namespace quorvel
