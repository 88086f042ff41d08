// Catalogue message keys of the failures the module raises, one per identifier.
#pragma once

#include <orrery/except/message_id.hpp>

#include <string_view>

namespace orrery::diagnostic::ids {

/// Prefix of the analyzer failures raised on behalf of error and assert.
inline constexpr std::string_view kErrorPrefix = "ORRERY:error:";

// ---- error structures and stacks ------------------------------------------------
ORRERY_MESSAGE_KEY(BadIdentifier, "ORRERY:error:badIdentifier", 0);
ORRERY_MESSAGE_KEY(BadMessage, "ORRERY:error:badMessage", 0);
ORRERY_MESSAGE_KEY(NonScalarStructure, "ORRERY:error:nonScalarInput", 0);
ORRERY_MESSAGE_KEY(BadStack, "ORRERY:error:badStack", 0);
ORRERY_MESSAGE_KEY(BadStackFile, "ORRERY:error:badStackFile", 0);
ORRERY_MESSAGE_KEY(BadStackFileString, "ORRERY:error:badStackFileString", 0);
ORRERY_MESSAGE_KEY(BadStackName, "ORRERY:error:badStackName", 0);
ORRERY_MESSAGE_KEY(BadStackLine, "ORRERY:error:badStackLine", 0);
ORRERY_MESSAGE_KEY(BadStackStruct, "ORRERY:error:badStackStruct", 0);

// ---- assert -------------------------------------------------------------------
ORRERY_MESSAGE_KEY(AssertionLogicalScalar, "ORRERY:assertion:LogicalScalar", 0);
ORRERY_MESSAGE_KEY(AssertionEmptyMessage, "ORRERY:assertion:emptyMessageNotAllowed", 0);
ORRERY_MESSAGE_KEY(AssertionFailed, "ORRERY:assertion:failed", 0);

// ---- rethrow, lasterr, lasterror ------------------------------------------------
ORRERY_MESSAGE_KEY(RethrowInvalidInputType, "ORRERY:rethrow:invalidInputType", 0);
/// Argument: the rejected identifier (UTF-16).
ORRERY_MESSAGE_KEY(LasterrBadMessageIdentifier, "ORRERY:lasterr:badMessageIdentifier", 1);
ORRERY_MESSAGE_KEY(LasterrorNonStructureInput, "ORRERY:lasterror:nonStructureInput", 0);

// ---- message objects and formatted text -----------------------------------------
ORRERY_MESSAGE_KEY(InvalidNumberOfArguments, "ORRERY:builtins:InvalidNumberOfArguments", 0);
ORRERY_MESSAGE_KEY(NonScalarMessage, "ORRERY:QException:NonScalarMessage", 0);
ORRERY_MESSAGE_KEY(MustBeStringScalarOrCharacterVector, "ORRERY:string:MustBeStringScalarOrCharacterVector", 0);

// ---- message input analyzer: texts only; the identifier is the caller's prefix
// ---- plus the mnemonic ----------------------------------------------------------
ORRERY_MESSAGE_KEY(AnalyzerUnexpectedArguments, "ORRERY:msgInputAnalyzer:unexpectedArguments", 0);
ORRERY_MESSAGE_KEY(AnalyzerInvalidMessageType, "ORRERY:msgInputAnalyzer:invalidMessageType", 0);
ORRERY_MESSAGE_KEY(AnalyzerMissingMessageArgument, "ORRERY:msgInputAnalyzer:missingMessageArgument", 0);
ORRERY_MESSAGE_KEY(AnalyzerBadMessageArgument, "ORRERY:msgInputAnalyzer:badMessageArgument", 0);
/// Argument: the largest accepted identifier length in bytes.
ORRERY_MESSAGE_KEY(AnalyzerIdentifierTooLong, "ORRERY:msgInputAnalyzer:identifierTooLong", 1);
ORRERY_MESSAGE_KEY(AnalyzerNonScalarInput, "ORRERY:msgInputAnalyzer:nonScalarInput", 0);

}  // namespace orrery::diagnostic::ids
