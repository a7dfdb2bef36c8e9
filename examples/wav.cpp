// Both formats are little-endian, as are the machines that this runs on.
#include "wav.h"
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>

namespace {

constexpr std::uint32_t highestRate = 1'000'000'000; // bytes a second still fit 32 bits

[[noreturn]] void refuse(const std::string& why) { throw std::runtime_error(why); }

// A file of known length, read at given positions only.
class Source
{
public:
    explicit Source(const std::filesystem::path& file)
    {
        std::error_code error;
        if (!std::filesystem::exists(file, error)) refuse("no such file");
        if (!std::filesystem::is_regular_file(file, error)) refuse("not a regular file");
        size = std::filesystem::file_size(file, error);
        stream_.open(file, std::ios::binary);
        if (error || !stream_) refuse("cannot be opened");
    }

    void read(std::uint64_t position, void* to, std::uint64_t bytes)
    {
        if (position > size || bytes > size - position) refuse("truncated WAV file");
        stream_.seekg(static_cast<std::streamoff>(position));
        stream_.read(static_cast<char*>(to), static_cast<std::streamsize>(bytes));
        if (!stream_) refuse("cannot be read");
    }

    std::uint64_t size = 0;

private:
    std::ifstream stream_;
};

struct ChunkHeader {
    char id[4];
    std::uint32_t size;
    bool is(const char* name) const { return std::memcmp(id, name, 4) == 0; }
};

struct Format {
    std::uint16_t tag, channels;
    std::uint32_t rate, bytesPerSecond;
    std::uint16_t frameBytes, bits;
};

// The tail of a format chunk whose tag says "extensible".
struct Extension {
    std::uint16_t size, validBits;
    std::uint32_t speakers;
    std::uint8_t kind[16];
};
constexpr std::uint16_t tagPcm = 1, tagExtensible = 0xFFFE;
constexpr std::uint8_t kindPcm[16] = {1, 0, 0, 0, 0, 0, 0x10, 0, 0x80, 0, 0, 0xAA, 0, 0x38, 0x9B, 0x71};
static_assert(sizeof(ChunkHeader) == 8 && sizeof(Format) == 16 && sizeof(Extension) == 24);

Format readFormat(Source& source, std::uint64_t position, std::uint32_t size)
{
    Format f;
    if (size < sizeof f) refuse("format chunk of " + std::to_string(size) + " bytes is too short");
    source.read(position, &f, sizeof f);
    if (f.tag == tagExtensible) {
        Extension e;
        if (size < sizeof f + sizeof e) refuse("format chunk of " + std::to_string(size) + " bytes is too short");
        source.read(position + sizeof f, &e, sizeof e);
        if (std::memcmp(e.kind, kindPcm, sizeof kindPcm) != 0) refuse("not PCM");
        if (e.validBits != f.bits) refuse(std::to_string(e.validBits) + " valid bits a sample, 16 are needed");
    } else if (f.tag != tagPcm) {
        refuse("not PCM (format " + std::to_string(f.tag) + ")");
    }
    if (f.bits != 16) refuse(std::to_string(f.bits) + " bits a sample, 16 are needed");
    if (f.channels != 1 && f.channels != 2) refuse(std::to_string(f.channels) + " channels, 1 or 2 are needed");
    if (f.rate == 0 || f.rate > highestRate) refuse("sample rate of " + std::to_string(f.rate) + " Hz");
    if (f.frameBytes != 2 * f.channels) refuse("frames of " + std::to_string(f.frameBytes) + " bytes");
    return f;
}

} // namespace

Wav readWav(const std::filesystem::path& file)
{
    Source source(file);
    if (source.size == 0) refuse("empty file");
    ChunkHeader riff;
    char wave[4];
    source.read(0, &riff, sizeof riff);
    if (!riff.is("RIFF")) refuse("not a WAV file");
    source.read(sizeof riff, wave, sizeof wave);
    if (std::memcmp(wave, "WAVE", 4) != 0) refuse("not a WAV file");
    const std::uint64_t end = sizeof riff + std::uint64_t(riff.size);
    if (end > source.size)
        refuse("truncated WAV file: " + std::to_string(source.size) + " of " + std::to_string(end) + " bytes");

    // Chunks start at even positions; all but format and samples are skipped.
    Format format = {};
    ChunkHeader chunk;
    for (std::uint64_t at = sizeof riff + sizeof wave; at + sizeof chunk <= end;) {
        source.read(at, &chunk, sizeof chunk);
        at += sizeof chunk;
        if (chunk.size > end - at)
            refuse("a chunk of " + std::to_string(chunk.size) + " bytes is longer than the file");
        if (chunk.is("fmt ")) {
            format = readFormat(source, at, chunk.size);
        } else if (chunk.is("data")) {
            if (format.rate == 0) refuse("no format before the samples");
            if (chunk.size % format.frameBytes != 0)
                refuse(std::to_string(chunk.size) + " bytes of samples are no whole number of frames");
            if (chunk.size == 0) refuse("no samples");
            Wav wav{format.rate, format.channels, std::vector<std::int16_t>(chunk.size / 2)};
            source.read(at, wav.samples.data(), chunk.size);
            return wav;
        }
        at += chunk.size + (chunk.size & 1);
    }
    refuse("no samples");
}

void writeWav(const std::filesystem::path& file, const Wav& wav)
{
    const std::uint64_t bytes = 2 * std::uint64_t(wav.samples.size());
    if (bytes > 0xFFFFFF00) refuse("too long for a WAV file");
    const auto channels = static_cast<std::uint16_t>(wav.channels);
    const auto frameBytes = static_cast<std::uint16_t>(2 * channels);
    const Format format = {tagPcm, channels, wav.rate, wav.rate * frameBytes, frameBytes, 16};
    const struct {
        ChunkHeader riff;
        char wave[4];
        ChunkHeader fmt;
        Format format;
        ChunkHeader data;
    } header = {{{'R', 'I', 'F', 'F'}, static_cast<std::uint32_t>(sizeof header - sizeof(ChunkHeader) + bytes)},
                {'W', 'A', 'V', 'E'},
                {{'f', 'm', 't', ' '}, sizeof format},
                format,
                {{'d', 'a', 't', 'a'}, static_cast<std::uint32_t>(bytes)}};
    static_assert(sizeof header == 44);
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(&header), sizeof header);
    out.write(reinterpret_cast<const char*>(wav.samples.data()), static_cast<std::streamsize>(bytes));
    out.close();
    if (!out) refuse("cannot write " + file.filename().string());
}
