// Catalogue keys of the failures and warnings of the host's built-in functions.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::shell::builtins::messages {

ORRERY_MESSAGE_KEY(NotText, "ORRERY:host:notText", 2);
ORRERY_MESSAGE_KEY(NotNumeric, "ORRERY:host:notNumeric", 2);
ORRERY_MESSAGE_KEY(NotNumber, "ORRERY:host:notNumber", 2);
ORRERY_MESSAGE_KEY(BadDimension, "ORRERY:host:badDimension", 1);
ORRERY_MESSAGE_KEY(BadSize, "ORRERY:host:badSize", 1);
ORRERY_MESSAGE_KEY(UnknownClass, "ORRERY:host:unknownClass", 2);
ORRERY_MESSAGE_KEY(CannotConvert, "ORRERY:host:cannotConvert", 2);
ORRERY_MESSAGE_KEY(SizeMismatch, "ORRERY:host:sizeMismatch", 2);
ORRERY_MESSAGE_KEY(ComplexResult, "ORRERY:host:complexResult", 1);
ORRERY_MESSAGE_KEY(BadCount, "ORRERY:host:badCount", 1);
ORRERY_MESSAGE_KEY(NotCellOfText, "ORRERY:host:notCellOfText", 1);
ORRERY_MESSAGE_KEY(NotMatrix, "ORRERY:host:notMatrix", 1);
ORRERY_MESSAGE_KEY(BadOption, "ORRERY:host:badOption", 2);
ORRERY_MESSAGE_KEY(BadFileIdentifier, "ORRERY:host:badFileIdentifier", 0);
ORRERY_MESSAGE_KEY(StructOddArguments, "ORRERY:host:struct:oddArguments", 0);
ORRERY_MESSAGE_KEY(StructBadFieldName, "ORRERY:host:struct:badFieldName", 1);
ORRERY_MESSAGE_KEY(StructCellSizeMismatch, "ORRERY:host:struct:cellSizeMismatch", 0);
ORRERY_MESSAGE_KEY(StructNotStruct, "ORRERY:host:struct:notStruct", 0);
ORRERY_MESSAGE_KEY(StructDuplicateField, "ORRERY:host:struct:duplicateField", 1);
ORRERY_MESSAGE_KEY(NotObject, "ORRERY:host:notObject", 2);
ORRERY_MESSAGE_KEY(NotStructOrObject, "ORRERY:host:notStructOrObject", 2);
ORRERY_MESSAGE_KEY(UnknownMessage, "ORRERY:host:message:unknownIdentifier", 1);
ORRERY_MESSAGE_KEY(BadMessageArgument, "ORRERY:host:message:badArgument", 0);
ORRERY_MESSAGE_KEY(NotMessage, "ORRERY:host:notMessage", 0);
ORRERY_MESSAGE_KEY(TocWithoutTic, "ORRERY:host:tocWithoutTic", 0);
ORRERY_MESSAGE_KEY(BadDateVector, "ORRERY:host:badDateVector", 0);
ORRERY_MESSAGE_KEY(CannotRead, "ORRERY:host:file:cannotRead", 1);
ORRERY_MESSAGE_KEY(FileNotFound, "ORRERY:host:file:notFound", 1);
ORRERY_MESSAGE_KEY(CannotDelete, "ORRERY:host:file:cannotDelete", 2);
ORRERY_MESSAGE_KEY(DeleteFolder, "ORRERY:host:file:isFolder", 1);
ORRERY_MESSAGE_KEY(NoSuchFolder, "ORRERY:host:file:noSuchFolder", 1);
ORRERY_MESSAGE_KEY(CannotCreateFolder, "ORRERY:host:file:cannotCreateFolder", 2);
ORRERY_MESSAGE_KEY(FolderExists, "ORRERY:host:file:folderExists", 1);

}  // namespace orrery::shell::builtins::messages
