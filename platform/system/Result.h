// SPDX-License-Identifier: MIT
// Result holds the value of an operation, or the error that kept it from having one.
// Thread: any; a value.
#pragma once

#include <utility>
#include <variant>

/// Value and Error must be different types. Accessing the absent one is a programming error and ends the
/// process: std::get throws std::bad_variant_access, which nothing catches.
template <typename Value, typename Error>
class [[nodiscard]] Result {
public:
    Result(Value value)
        : m_content(std::in_place_index<0>, std::move(value))
    {
    }
    Result(Error error)
        : m_content(std::in_place_index<1>, std::move(error))
    {
    }

    [[nodiscard]] bool hasValue() const { return m_content.index() == 0; }
    explicit operator bool() const { return hasValue(); }

    [[nodiscard]] const Value &value() const & { return std::get<0>(m_content); }
    [[nodiscard]] Value &&value() && { return std::get<0>(std::move(m_content)); }
    [[nodiscard]] const Error &error() const { return std::get<1>(m_content); }

private:
    std::variant<Value, Error> m_content;
};
