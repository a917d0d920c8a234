// SPDX-License-Identifier: MIT
#include "cardwright/hosting/TextEncoding.h"

#include <algorithm>

#include "cardwright/storage/CodePage.h"

namespace cardwright {
namespace {

constexpr std::string_view kUtf8ByteOrderMark = "\xEF\xBB\xBF", kUtf16BigEndianMark = "\xFE\xFF";

Text FromUtf16(std::string_view bytes, std::size_t lowByte) {
  const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  return Text::OfSize(bytes.size() / 2, [&](char16_t* units) {
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
      *units++ = static_cast<char16_t>(byteAt(i + lowByte) | byteAt(i + 1 - lowByte) << 8);
  });
}

std::size_t Utf8Length(unsigned char first) noexcept {
  if (first >= 0xF0) return 4;
  if (first >= 0xE0) return 3;
  return first >= 0xC0 ? 2 : 1;
}

// The number of bytes without an incomplete character at the end.
std::size_t WholeUtf8(std::string_view bytes) noexcept {
  for (std::size_t back = 1; back <= std::min<std::size_t>(3, bytes.size()); ++back) {
    const auto byte = static_cast<unsigned char>(bytes[bytes.size() - back]);
    if (byte < 0x80) return bytes.size();
    if (byte >= 0xC0) return Utf8Length(byte) > back ? bytes.size() - back : bytes.size();
  }
  return bytes.size();
}

}  // namespace

Text DecodeAvailable(TextEncoding encoding, std::string& bytes, bool isAll) {
  std::size_t size = bytes.size();
  if (encoding == TextEncoding::Utf16) size -= size % 2;
  if (encoding == TextEncoding::Utf8 && !isAll) size = WholeUtf8(bytes);
  const std::string_view whole = std::string_view(bytes).substr(0, size);
  Text text;
  switch (encoding) {
    case TextEncoding::CodePage: text = CodePage::Current().Decode(whole); break;
    case TextEncoding::Utf16: text = FromUtf16(whole, 0); break;
    case TextEncoding::Utf8: text = Text::FromUtf8(whole); break;
  }
  bytes.erase(0, size);
  return text;
}

std::optional<std::string> EncodeText(TextEncoding encoding, std::u16string_view text) {
  if (encoding == TextEncoding::Utf8) return Text(text).ToUtf8();
  if (encoding == TextEncoding::CodePage) {
    if (CodePage::Current().FirstLost(text)) return std::nullopt;
    return CodePage::Current().Encode(text);
  }
  std::string bytes;
  bytes.reserve(text.size() * 2);
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

Text DecodeScript(std::string_view bytes) {
  if (bytes.starts_with(kUtf8ByteOrderMark)) return Text::FromUtf8(bytes.substr(kUtf8ByteOrderMark.size()));
  if (bytes.starts_with(kUtf16ByteOrderMark)) return FromUtf16(bytes.substr(kUtf16ByteOrderMark.size()), 0);
  if (bytes.starts_with(kUtf16BigEndianMark)) return FromUtf16(bytes.substr(kUtf16BigEndianMark.size()), 1);
  // Bytes that are not valid UTF-8 do not survive the way there and back.
  Text text = Text::FromUtf8(bytes);
  return text.ToUtf8() == bytes ? text : CodePage::Current().Decode(bytes);
}

}  // namespace cardwright
