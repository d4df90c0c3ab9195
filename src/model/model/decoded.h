#pragma once

#include <QString>

#include <optional>
#include <variant>

// Why a record could not be read: the kind, and the path of keys to the field ("icon.type").
struct DecodeError
{
    enum Kind { MissingKey, WrongType, InvalidUuid, UnknownRawValue };
    Kind kind;
    QString path;

    QString message() const;
    friend bool operator==(const DecodeError &, const DecodeError &) = default;
};

// A whole record or the error: never a partly read one, and never an exception.
template<typename T> class Decoded
{
public:
    Decoded(T value)
        : m_result(std::move(value))
    { }
    Decoded(DecodeError error)
        : m_result(std::move(error))
    { }

    bool ok() const { return std::holds_alternative<T>(m_result); }
    const T &value() const { return std::get<T>(m_result); }
    const DecodeError &error() const { return std::get<DecodeError>(m_result); }

private:
    std::variant<T, DecodeError> m_result;
};
