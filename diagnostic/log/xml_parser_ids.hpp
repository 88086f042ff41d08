// Catalogue message keys of the "ORRERY:warning:XMLParser" family: what the warning
// log reader finds wrong in a file.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::diagnostic::ids {

/// Arguments: the parser's error text, the line, the column counted from 1.
ORRERY_MESSAGE_KEY(XmlParseError, "ORRERY:warning:XMLParser:ParseError");
/// Argument: the element name.
ORRERY_MESSAGE_KEY(XmlUnknownElement, "ORRERY:warning:XMLParser:UnknownElement");
ORRERY_MESSAGE_KEY(XmlNestedLog, "ORRERY:warning:XMLParser:NestedLog");
ORRERY_MESSAGE_KEY(XmlNestedWarning, "ORRERY:warning:XMLParser:NestedWarning");
/// Argument: the element name.
ORRERY_MESSAGE_KEY(XmlUnexpectedElement, "ORRERY:warning:XMLParser:UnexpectedElement");
/// Argument: the element name.
ORRERY_MESSAGE_KEY(XmlImmutableElement, "ORRERY:warning:XMLParser:ImmutableElement");
/// Arguments: the element name, the attribute name.
ORRERY_MESSAGE_KEY(XmlUnknownAttribute, "ORRERY:warning:XMLParser:UnknownAttribute");
/// Arguments: the element name, the attribute name.
ORRERY_MESSAGE_KEY(XmlMissingAttribute, "ORRERY:warning:XMLParser:MissingAttribute");
/// Argument: the identifier.
ORRERY_MESSAGE_KEY(XmlInvalidIdentifier, "ORRERY:warning:XMLParser:InvalidIdentifier");
/// Argument: the value.
ORRERY_MESSAGE_KEY(XmlInvalidWasDisabled, "ORRERY:warning:XMLParser:InvalidWasDisabled");
ORRERY_MESSAGE_KEY(XmlInvalidTimeFormat, "ORRERY:warning:XMLParser:InvalidTimeFormat");
/// Argument: the value.
ORRERY_MESSAGE_KEY(XmlInvalidArgType, "ORRERY:warning:XMLParser:InvalidArgType");
/// Argument: the value.
ORRERY_MESSAGE_KEY(XmlInvalidLine, "ORRERY:warning:XMLParser:InvalidLine");
/// Argument: the whole escape, both "#" included.
ORRERY_MESSAGE_KEY(XmlInvalidHexEntry, "ORRERY:warning:XMLParser:InvalidHexEntry");
/// Arguments: "#" and the rest of the text from it.
ORRERY_MESSAGE_KEY(XmlUnmatchedEscapedCharacter, "ORRERY:warning:XMLParser:UnmatchedEscapedCharacter");

}  // namespace orrery::diagnostic::ids
