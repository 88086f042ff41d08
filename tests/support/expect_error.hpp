// Assertion helpers that check a raised error's identifier (and text) in one line.
#pragma once

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/except/qexception.hpp>

#include <gtest/gtest.h>

#include <string>

/// Runs statement and expects a catalogued failure with the identifier.
#define EXPECT_MSGID(statement, expectedIdentifier)                                                             \
    do {                                                                                                        \
        try {                                                                                                   \
            statement;                                                                                          \
            ADD_FAILURE() << "expected " << (expectedIdentifier) << ", nothing raised";                         \
        } catch (const ::orrery::except::IMsgIDException& failure__) {                                          \
            EXPECT_EQ(failure__.identifier(), std::string(expectedIdentifier)) << "text: " << failure__.what(); \
        }                                                                                                       \
    } while (false)

/// Runs statement and expects a catalogued failure with identifier and exact text.
#define EXPECT_MSGID_TEXT(statement, expectedIdentifier, expectedText)                  \
    do {                                                                                \
        try {                                                                           \
            statement;                                                                  \
            ADD_FAILURE() << "expected " << (expectedIdentifier) << ", nothing raised"; \
        } catch (const ::orrery::except::IMsgIDException& failure__) {                  \
            EXPECT_EQ(failure__.identifier(), std::string(expectedIdentifier));         \
            EXPECT_STREQ(failure__.what(), expectedText);                               \
        }                                                                               \
    } while (false)

/// Runs statement and expects a user error (QException) with the identifier.
#define EXPECT_QEXCEPTION(statement, expectedIdentifier, expectedMessageUtf8) \
    do {                                                                      \
        try {                                                                 \
            statement;                                                        \
            ADD_FAILURE() << "expected a user error, nothing raised";         \
        } catch (const ::orrery::except::QException& error__) {               \
            EXPECT_EQ(error__.identifier(), std::string(expectedIdentifier)); \
            EXPECT_STREQ(error__.what(), expectedMessageUtf8);                \
        }                                                                     \
    } while (false)

/// Runs statement and expects a catalogued failure with the identifier and the
/// catalogue arguments, a std::vector<orrery::catalogue::MessageArgument>.
#define EXPECT_MSGID_ARGS(statement, expectedIdentifier, expectedArguments)             \
    do {                                                                                \
        try {                                                                           \
            statement;                                                                  \
            ADD_FAILURE() << "expected " << (expectedIdentifier) << ", nothing raised"; \
        } catch (const ::orrery::except::IMsgIDException& failure__) {                  \
            EXPECT_EQ(failure__.identifier(), std::string(expectedIdentifier));         \
            EXPECT_EQ(failure__.key().arguments, (expectedArguments));                  \
        }                                                                               \
    } while (false)
