// Texts of Windows, which are wide, as the texts of the program and back. Only for sources of this folder,
// and there only on Windows.
#pragma once

#include <string>
#include <string_view>

#include <windows.h>

namespace marlogl {

/// A text of Windows in UTF-8; half a surrogate pair becomes U+FFFD.
inline std::string utf8(std::wstring_view wide)
{
    const int size = static_cast<int>(wide.size());
    const int length = WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, text.data(), length, nullptr, nullptr);
    return text;
}

/// A text that is UTF-8 or, where its bytes can't be that, in the system's code page: so are the design files
/// of older authors.
inline std::wstring wide(std::string_view text)
{
    const int size = static_cast<int>(text.size());
    for (const UINT code_page : {UINT{CP_UTF8}, UINT{CP_ACP}}) {
        const DWORD flags = code_page == CP_UTF8 ? MB_ERR_INVALID_CHARS : 0;
        const int length = MultiByteToWideChar(code_page, flags, text.data(), size, nullptr, 0);
        std::wstring converted(static_cast<std::size_t>(length), L'\0');
        if (MultiByteToWideChar(code_page, flags, text.data(), size, converted.data(), length) > 0)
            return converted;
    }
    return {};
}

} // namespace marlogl
