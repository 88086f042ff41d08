// Catalogue keys of the failures and warnings of the host's built-in functions.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::shell::builtins::messages {

ORRERY_MESSAGE_KEY(NotText, "ORRERY:host:notText");
ORRERY_MESSAGE_KEY(NotNumeric, "ORRERY:host:notNumeric");
ORRERY_MESSAGE_KEY(NotNumber, "ORRERY:host:notNumber");
ORRERY_MESSAGE_KEY(BadDimension, "ORRERY:host:badDimension");
ORRERY_MESSAGE_KEY(BadSize, "ORRERY:host:badSize");
ORRERY_MESSAGE_KEY(UnknownClass, "ORRERY:host:unknownClass");
ORRERY_MESSAGE_KEY(CannotConvert, "ORRERY:host:cannotConvert");
ORRERY_MESSAGE_KEY(SizeMismatch, "ORRERY:host:sizeMismatch");
ORRERY_MESSAGE_KEY(ComplexResult, "ORRERY:host:complexResult");
ORRERY_MESSAGE_KEY(BadCount, "ORRERY:host:badCount");
ORRERY_MESSAGE_KEY(NotCellOfText, "ORRERY:host:notCellOfText");
ORRERY_MESSAGE_KEY(NotMatrix, "ORRERY:host:notMatrix");
ORRERY_MESSAGE_KEY(BadOption, "ORRERY:host:badOption");
ORRERY_MESSAGE_KEY(BadFileIdentifier, "ORRERY:host:badFileIdentifier");
ORRERY_MESSAGE_KEY(StructOddArguments, "ORRERY:host:struct:oddArguments");
ORRERY_MESSAGE_KEY(StructBadFieldName, "ORRERY:host:struct:badFieldName");
ORRERY_MESSAGE_KEY(StructCellSizeMismatch, "ORRERY:host:struct:cellSizeMismatch");
ORRERY_MESSAGE_KEY(StructNotStruct, "ORRERY:host:struct:notStruct");
ORRERY_MESSAGE_KEY(StructDuplicateField, "ORRERY:host:struct:duplicateField");
ORRERY_MESSAGE_KEY(NotObject, "ORRERY:host:notObject");
ORRERY_MESSAGE_KEY(NotStructOrObject, "ORRERY:host:notStructOrObject");
ORRERY_MESSAGE_KEY(UnknownMessage, "ORRERY:host:message:unknownIdentifier");
ORRERY_MESSAGE_KEY(BadMessageArgument, "ORRERY:host:message:badArgument");
ORRERY_MESSAGE_KEY(NotMessage, "ORRERY:host:notMessage");
ORRERY_MESSAGE_KEY(TocWithoutTic, "ORRERY:host:tocWithoutTic");
ORRERY_MESSAGE_KEY(BadDateVector, "ORRERY:host:badDateVector");
ORRERY_MESSAGE_KEY(CannotRead, "ORRERY:host:file:cannotRead");
ORRERY_MESSAGE_KEY(FileNotFound, "ORRERY:host:file:notFound");
ORRERY_MESSAGE_KEY(CannotDelete, "ORRERY:host:file:cannotDelete");
ORRERY_MESSAGE_KEY(DeleteFolder, "ORRERY:host:file:isFolder");
ORRERY_MESSAGE_KEY(NoSuchFolder, "ORRERY:host:file:noSuchFolder");
ORRERY_MESSAGE_KEY(CannotCreateFolder, "ORRERY:host:file:cannotCreateFolder");
ORRERY_MESSAGE_KEY(FolderExists, "ORRERY:host:file:folderExists");

}  // namespace orrery::shell::builtins::messages
