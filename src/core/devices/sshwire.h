#pragma once

#include <QByteArrayView>

#include <optional>

// The SSH wire format of a public key blob: length-prefixed strings and multi-precision integers.
namespace sshwire {

class Reader
{
public:
    explicit Reader(QByteArrayView blob)
        : m_rest(blob)
    { }

    std::optional<QByteArrayView> string()
    {
        if (m_rest.size() < 4)
            return std::nullopt;
        const auto *bytes = reinterpret_cast<const uchar *>(m_rest.data());
        const quint32 length = quint32(bytes[0]) << 24 | quint32(bytes[1]) << 16
            | quint32(bytes[2]) << 8 | quint32(bytes[3]);
        if (length > quint32(m_rest.size() - 4))
            return std::nullopt;
        const QByteArrayView value = m_rest.sliced(4, length);
        m_rest = m_rest.sliced(4 + length);
        return value;
    }
    bool atEnd() const { return m_rest.isEmpty(); }

private:
    QByteArrayView m_rest;
};

// The significant bits of a non-negative mpint; -1 for a negative one (top bit set).
inline qsizetype bitLength(QByteArrayView mpint)
{
    if (!mpint.isEmpty() && (uchar(mpint[0]) & 0x80))
        return -1;
    qsizetype i = 0;
    while (i < mpint.size() && mpint[i] == 0)
        ++i;
    if (i == mpint.size())
        return 0;
    int top = 8;
    while (top > 0 && !(uchar(mpint[i]) & (1u << (top - 1))))
        --top;
    return (mpint.size() - i - 1) * 8 + top;
}

} // namespace sshwire
