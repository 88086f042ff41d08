// Catalogue message keys of the failures the module raises, one per identifier.
#pragma once

#include <orrery/except/message_id.hpp>

#include <string_view>

namespace orrery::diagnostic::ids {

/// Prefix of the analyzer failures raised on behalf of error and assert.
inline constexpr std::string_view kErrorPrefix = "ORRERY:error:";

// ---- error structures and stacks ------------------------------------------------
ORRERY_MESSAGE_KEY(BadIdentifier, "ORRERY:error:badIdentifier");
ORRERY_MESSAGE_KEY(BadMessage, "ORRERY:error:badMessage");
ORRERY_MESSAGE_KEY(NonScalarStructure, "ORRERY:error:nonScalarInput");
ORRERY_MESSAGE_KEY(BadStack, "ORRERY:error:badStack");
ORRERY_MESSAGE_KEY(BadStackFile, "ORRERY:error:badStackFile");
ORRERY_MESSAGE_KEY(BadStackFileString, "ORRERY:error:badStackFileString");
ORRERY_MESSAGE_KEY(BadStackName, "ORRERY:error:badStackName");
ORRERY_MESSAGE_KEY(BadStackLine, "ORRERY:error:badStackLine");
ORRERY_MESSAGE_KEY(BadStackStruct, "ORRERY:error:badStackStruct");

// ---- assert -------------------------------------------------------------------
ORRERY_MESSAGE_KEY(AssertionLogicalScalar, "ORRERY:assertion:LogicalScalar");
ORRERY_MESSAGE_KEY(AssertionEmptyMessage, "ORRERY:assertion:emptyMessageNotAllowed");
ORRERY_MESSAGE_KEY(AssertionFailed, "ORRERY:assertion:failed");

// ---- rethrow, lasterr, lasterror ------------------------------------------------
ORRERY_MESSAGE_KEY(RethrowInvalidInputType, "ORRERY:rethrow:invalidInputType");
/// Argument: the rejected identifier (UTF-16).
ORRERY_MESSAGE_KEY(LasterrBadMessageIdentifier, "ORRERY:lasterr:badMessageIdentifier");
ORRERY_MESSAGE_KEY(LasterrorNonStructureInput, "ORRERY:lasterror:nonStructureInput");

// ---- message objects and formatted text -----------------------------------------
ORRERY_MESSAGE_KEY(InvalidNumberOfArguments, "ORRERY:builtins:InvalidNumberOfArguments");
ORRERY_MESSAGE_KEY(NonScalarMessage, "ORRERY:QException:NonScalarMessage");
ORRERY_MESSAGE_KEY(MustBeStringScalarOrCharacterVector, "ORRERY:string:MustBeStringScalarOrCharacterVector");

// ---- message input analyzer: texts only; the identifier is the caller's prefix
// ---- plus the mnemonic ----------------------------------------------------------
ORRERY_MESSAGE_KEY(AnalyzerUnexpectedArguments, "ORRERY:msgInputAnalyzer:unexpectedArguments");
ORRERY_MESSAGE_KEY(AnalyzerInvalidMessageType, "ORRERY:msgInputAnalyzer:invalidMessageType");
ORRERY_MESSAGE_KEY(AnalyzerMissingMessageArgument, "ORRERY:msgInputAnalyzer:missingMessageArgument");
ORRERY_MESSAGE_KEY(AnalyzerBadMessageArgument, "ORRERY:msgInputAnalyzer:badMessageArgument");
/// Argument: the largest accepted identifier length in bytes.
ORRERY_MESSAGE_KEY(AnalyzerIdentifierTooLong, "ORRERY:msgInputAnalyzer:identifierTooLong");
ORRERY_MESSAGE_KEY(AnalyzerNonScalarInput, "ORRERY:msgInputAnalyzer:nonScalarInput");

}  // namespace orrery::diagnostic::ids
