#pragma once

#include "check/finding.h"

// All that a check can find. The codes are for other programs and do not change.
namespace orvane {

struct FindingKind {
  std::string_view code;
  Severity severity = Severity::Warning;
};

// The reading of the files.
inline constexpr FindingKind missingFile{"missing-file", Severity::Error};
inline constexpr FindingKind unreadableFile{"unreadable-file", Severity::Error};
inline constexpr FindingKind emptyFile{"empty-file", Severity::Error};
inline constexpr FindingKind inUtf8{"utf-8", Severity::Error};
inline constexpr FindingKind inUtf16{"utf-16", Severity::Error};
inline constexpr FindingKind oldLineEnd{"old-line-end", Severity::Error};
inline constexpr FindingKind noLineEnd{"no-line-end", Severity::Error};
inline constexpr FindingKind noCharacter{"no-character", Severity::Error};
inline constexpr FindingKind missingSeparator{"missing-separator", Severity::Error};
inline constexpr FindingKind notAnInteger{"not-an-integer", Severity::Error};
inline constexpr FindingKind notABoolean{"not-a-boolean", Severity::Error};
inline constexpr FindingKind numberTooLarge{"number-too-large", Severity::Error};
inline constexpr FindingKind keyOutOfRange{"key-out-of-range", Severity::Error};
inline constexpr FindingKind unknownTechnic{"unknown-technique", Severity::Error};
inline constexpr FindingKind noAssermente{"no-assermente", Severity::Error};
inline constexpr FindingKind assermenteOutOfReach{"assermente-out-of-reach", Severity::Error};

// What the files hold.
inline constexpr FindingKind titleIsRecord{"title-is-record"};
inline constexpr FindingKind noRecord{"no-record"};
inline constexpr FindingKind tooManyRecords{"too-many-records"};
inline constexpr FindingKind looseNumber{"loose-number"};
inline constexpr FindingKind swallowedKey{"swallowed-key"};
inline constexpr FindingKind alikeNames{"alike-names"};
inline constexpr FindingKind duplicateKey{"duplicate-key"};
inline constexpr FindingKind duplicateNumber{"duplicate-number"};
inline constexpr FindingKind literalReturn{"literal-return"};
inline constexpr FindingKind missingKey{"missing-key"};
inline constexpr FindingKind unknownSkill{"unknown-skill"};
inline constexpr FindingKind unusedSkill{"unused-skill"};
inline constexpr FindingKind repeatedTechnic{"repeated-technique"};
inline constexpr FindingKind unusedTechnic{"unused-technique"};

// What the rules do with it.
inline constexpr FindingKind noProfile{"no-profile"};
inline constexpr FindingKind vehiclePosition{"vehicle-position"};
inline constexpr FindingKind repeatedVehicleCode{"repeated-vehicle-code"};
inline constexpr FindingKind redundantSkill{"redundant-skill"};
inline constexpr FindingKind poolTooSmall{"pool-too-small"};
inline constexpr FindingKind baseTooHigh{"base-too-high"};
inline constexpr FindingKind unreachableSkill{"unreachable-skill", Severity::Note};
inline constexpr FindingKind unreachableGrade{"unreachable-grade", Severity::Note};
inline constexpr FindingKind unreachablePower{"unreachable-power", Severity::Note};
inline constexpr FindingKind unknownCategory{"unknown-category"};
inline constexpr FindingKind unknownSign{"unknown-sign"};
inline constexpr FindingKind emptyCategory{"empty-category"};
inline constexpr FindingKind powerNumber{"power-number"};
inline constexpr FindingKind unknownType{"unknown-type"};
inline constexpr FindingKind restrictionWithoutEffect{"restriction-without-effect"};
inline constexpr FindingKind negativeRestriction{"negative-restriction"};
inline constexpr FindingKind restrictionNeverMet{"restriction-never-met"};

// The sheet.
inline constexpr FindingKind cutOnSheet{"cut-on-sheet"};
inline constexpr FindingKind wordTooWide{"word-too-wide"};
inline constexpr FindingKind wrappedOnSheet{"wrapped-on-sheet"};
inline constexpr FindingKind tooManySkills{"too-many-skills"};

}  // namespace orvane
