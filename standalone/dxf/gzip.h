// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>

/// @return true for bytes that begin as what gzip packs.
bool isPacked(std::string_view bytes);

/// Few bytes can pack a thousand times as many; nobody's drawing is that large.
constexpr std::size_t kMostUnpacked = std::size_t(1) << 30;

/// @param path stands in errors.
/// @throws CKvDxfError when the bytes are damaged, end too early or would grow beyond the limit.
QByteArray unpacked(std::string_view bytes, const QString &path, std::size_t limit = kMostUnpacked);

/// Packs bytes as gzip does. The same bytes always give the same ones.
class CKvGzipPacker
{
public:
    /// Takes the next packed piece.
    using Sink = std::function<void(std::string_view)>;

    explicit CKvGzipPacker(Sink sink);
    ~CKvGzipPacker();
    CKvGzipPacker(const CKvGzipPacker &) = delete;
    CKvGzipPacker &operator=(const CKvGzipPacker &) = delete;

    void add(std::string_view bytes);
    /// To be called once, behind the last piece.
    void finish();

private:
    struct Stream;

    void pump(std::string_view bytes, bool isLast);

    Sink m_sink;
    std::unique_ptr<Stream> m_stream;
};
