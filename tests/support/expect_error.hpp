// Assertion helpers that check a raised error's identifier (and text) in one line.
#pragma once

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/except/qexception.hpp>

#include <gtest/gtest.h>

#include <string>

/// Runs statement, expects it to raise Type (named by expected in the failure
/// report), and runs the checks on the caught `failure__`.
#define ORRERY_EXPECT_RAISED(statement, Type, expected, ...)                  \
    do {                                                                      \
        try {                                                                 \
            statement;                                                        \
            ADD_FAILURE() << "expected " << (expected) << ", nothing raised"; \
        } catch (const Type& failure__) {                                     \
            __VA_ARGS__;                                                      \
        }                                                                     \
    } while (false)

/// Runs statement and expects a catalogued failure with the identifier.
#define EXPECT_MSGID(statement, expectedIdentifier)                                         \
    ORRERY_EXPECT_RAISED(statement, ::orrery::except::IMsgIDException, expectedIdentifier,  \
                         EXPECT_EQ(failure__.identifier(), std::string(expectedIdentifier)) \
                             << "text: " << failure__.what())

/// Runs statement and expects a catalogued failure with identifier and exact text.
#define EXPECT_MSGID_TEXT(statement, expectedIdentifier, expectedText)                       \
    ORRERY_EXPECT_RAISED(statement, ::orrery::except::IMsgIDException, expectedIdentifier,   \
                         EXPECT_EQ(failure__.identifier(), std::string(expectedIdentifier)); \
                         EXPECT_STREQ(failure__.what(), expectedText))

/// Runs statement and expects a user error (QException) with the identifier.
#define EXPECT_QEXCEPTION(statement, expectedIdentifier, expectedMessageUtf8)                \
    ORRERY_EXPECT_RAISED(statement, ::orrery::except::QException, "a user error",            \
                         EXPECT_EQ(failure__.identifier(), std::string(expectedIdentifier)); \
                         EXPECT_STREQ(failure__.what(), expectedMessageUtf8))

/// Runs statement and expects a catalogued failure with the identifier and the
/// catalogue arguments, a std::vector<orrery::catalogue::MessageArgument>.
#define EXPECT_MSGID_ARGS(statement, expectedIdentifier, expectedArguments)                  \
    ORRERY_EXPECT_RAISED(statement, ::orrery::except::IMsgIDException, expectedIdentifier,   \
                         EXPECT_EQ(failure__.identifier(), std::string(expectedIdentifier)); \
                         EXPECT_EQ(failure__.key().arguments, (expectedArguments)))
