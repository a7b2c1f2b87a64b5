// SPDX-License-Identifier: MIT
#include "gzip.h"

#include "CKvDxfError.h"

#include <zlib.h>

#include <algorithm>
#include <new>
#include <utility>

namespace
{

constexpr std::string_view kMark = "\x1f\x8b";
constexpr std::size_t kPiece = 1 << 16;
/// zlib's word for the form that gzip writes, with its largest window.
constexpr int kGzipWindow = 15 + 16;
constexpr int kUsualMemory = 8;

/// zlib counts the bytes of one call in 32 bits.
uInt oneCall(std::size_t size)
{
    return uInt(std::min(size, std::size_t(1) << 30));
}

class CKvInflation
{
public:
    CKvInflation()
    {
        if (inflateInit2(&stream, kGzipWindow) != Z_OK) {
            throw std::bad_alloc();
        }
    }
    ~CKvInflation() { inflateEnd(&stream); }
    CKvInflation(const CKvInflation &) = delete;
    CKvInflation &operator=(const CKvInflation &) = delete;

    z_stream stream = {};
};

Bytef *inputBytes(std::string_view bytes)
{
    // zlib reads them only, but its older form doesn't say so.
    return reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
}

} // namespace

bool isPacked(std::string_view bytes)
{
    return bytes.substr(0, kMark.size()) == kMark;
}

QByteArray unpacked(std::string_view bytes, const QString &path, std::size_t limit)
{
    const auto refuse = [&](const char *reason) {
        throw CKvDxfError(path,
                          0,
                          QStringLiteral("The file is packed with gzip and can't be unpacked: %1.")
                              .arg(QLatin1String(reason)));
    };
    CKvInflation inflation;
    z_stream &stream = inflation.stream;
    std::string_view left = bytes;
    QByteArray all;
    char piece[kPiece];
    for (;;) {
        stream.next_in = inputBytes(left);
        stream.avail_in = oneCall(left.size());
        stream.next_out = reinterpret_cast<Bytef *>(piece);
        stream.avail_out = uInt(sizeof piece);
        const uInt given = stream.avail_in;
        const int outcome = inflate(&stream, Z_NO_FLUSH);
        left.remove_prefix(given - stream.avail_in);
        all.append(piece, int(sizeof piece - stream.avail_out));
        if (std::size_t(all.size()) > limit) {
            refuse("it would be too large");
        }
        if (outcome == Z_STREAM_END) {
            // Packed files may be joined; zeros fill up blocks of tapes.
            if (left.find_first_not_of('\0') == std::string_view::npos) {
                return all;
            }
            if (!isPacked(left) || inflateReset(&stream) != Z_OK) {
                refuse("other bytes stand behind its end");
            }
        } else if (outcome == Z_BUF_ERROR && left.empty()) {
            refuse("it ends too early");
        } else if (outcome != Z_OK && outcome != Z_BUF_ERROR) {
            refuse("it is damaged");
        }
    }
}

struct CKvGzipPacker::Stream {
    z_stream stream = {};
};

CKvGzipPacker::CKvGzipPacker(Sink sink)
    : m_sink(std::move(sink))
    , m_stream(std::make_unique<Stream>())
{
    if (deflateInit2(&m_stream->stream,
                     Z_DEFAULT_COMPRESSION,
                     Z_DEFLATED,
                     kGzipWindow,
                     kUsualMemory,
                     Z_DEFAULT_STRATEGY)
        != Z_OK) {
        throw std::bad_alloc();
    }
}

CKvGzipPacker::~CKvGzipPacker()
{
    deflateEnd(&m_stream->stream);
}

void CKvGzipPacker::add(std::string_view bytes)
{
    while (!bytes.empty()) {
        const uInt size = oneCall(bytes.size());
        pump(bytes.substr(0, size), /*isLast*/ false);
        bytes.remove_prefix(size);
    }
}

void CKvGzipPacker::finish()
{
    pump({}, /*isLast*/ true);
}

void CKvGzipPacker::pump(std::string_view bytes, bool isLast)
{
    z_stream &stream = m_stream->stream;
    stream.next_in = inputBytes(bytes);
    stream.avail_in = uInt(bytes.size());
    char piece[kPiece];
    do {
        stream.next_out = reinterpret_cast<Bytef *>(piece);
        stream.avail_out = uInt(sizeof piece);
        deflate(&stream, isLast ? Z_FINISH : Z_NO_FLUSH);
        m_sink({ piece, sizeof piece - stream.avail_out });
    } while (stream.avail_out == 0);
}
