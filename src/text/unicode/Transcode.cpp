#include "text/unicode/Transcode.h"

#include <cstddef>

#include "text/unicode/LocaleConversion.h"
#include "text/unicode/StreamTranscoder.h"
#include "text/unicode/UStringBuilder.h"

namespace {

// Returns the source run through a StreamTranscoder into a builder of unitsPerSourceUnit target
// units for each source unit, copied to an exact fit.
template <class Target, class Source>
AutoUString<Target> TranscodeWhole(UStringRef<Source> source, std::size_t unitsPerSourceUnit) {
    UStringBuilder<Target> builder(unitsPerSourceUnit * source.Length());
    StreamTranscoder<Target, Source> transcoder(builder);
    transcoder.Start(Source());
    transcoder.Receive(source);
    transcoder.ReceiveEnd();
    return MakeUString(builder.Content());
}

}  // namespace

template <>
AutoUString<UTF8> Transcode<UTF8, UTF32>(UStringRef<UTF32> source) {
    return TranscodeWhole<UTF8>(source, 4);
}

template <>
AutoUString<UTF16> Transcode<UTF16, UTF32>(UStringRef<UTF32> source) {
    return TranscodeWhole<UTF16>(source, 2);
}

template <>
AutoUString<UTF32> Transcode<UTF32, UTF16>(UStringRef<UTF16> source) {
    return TranscodeWhole<UTF32>(source, 1);
}

template <>
AutoUString<UTF32> Transcode<UTF32, UTF8>(UStringRef<UTF8> source) {
    return TranscodeWhole<UTF32>(source, 1);
}

template <>
AutoUString<UTF32> Transcode<UTF32, UTF32>(UStringRef<UTF32> source) {
    UStringBuilder<UTF32> builder(source.Length());
    builder.Start(UTF32());
    builder.Receive(source);
    builder.ReceiveEnd();
    return MakeUString(builder.Content());
}

template <>
AutoUString<UTF8> Transcode<UTF8, USAscii>(UStringRef<USAscii> source) {
    return TranscodeWhole<UTF8>(source, 1);
}

template <>
AutoUString<UTF16> Transcode<UTF16, USAscii>(UStringRef<USAscii> source) {
    return TranscodeWhole<UTF16>(source, 2);
}

template <>
AutoUString<Local8Bit> Transcode<Local8Bit, UTF8>(UStringRef<UTF8> source) {
    return UnixPlatform::ToLocal8Bit(source);
}
