#include "engine/Utf.h"

#include "platform/text/Utf8.h"

namespace engine {
namespace {

const unsigned char* BytesOf(std::string_view text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

} // namespace

void Utf8Text::Assign(std::u16string_view text)
{
    constexpr std::size_t kBytesPerUnit = 3; // at most; a pair takes four for two
    constexpr std::size_t kMeasureFrom =
        64 * 1024; // so long a text is measured rather than tripled
    const std::size_t room =
        (text.size() < kMeasureFrom ? text.size() * kBytesPerUnit
                                    : platform::utf8::ByteCount(text.data(), text.size())) +
        1;
    char* out = m_inline;
    if (room > kInlineBytes) {
        m_heap = std::make_unique_for_overwrite<char[]>(room);
        out = m_heap.get();
    }
    m_size =
        platform::utf8::ToBytes(text.data(), text.size(), reinterpret_cast<unsigned char*>(out));
    out[m_size] = '\0';
    m_data = out;
}

std::u16string_view TerminatedText(const char16_t* text)
{
    return text ? std::u16string_view(text) : std::u16string_view();
}

std::size_t ToUtf16(std::string_view text, char16_t* buffer, std::size_t capacity)
{
    return platform::utf8::ToUnits(BytesOf(text), text.size(), buffer, capacity);
}

std::u16string ToUtf16(std::string_view text)
{
    std::u16string result(text.size(), u'\0');
    result.resize(ToUtf16(text, result.data(), result.size()));
    return result;
}

} // namespace engine
