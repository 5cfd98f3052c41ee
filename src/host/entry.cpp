#include "host/entry.h"

#ifdef _WIN32

#include "host/windows_text.h"

#include <vector>

int wmain(int argument_count, wchar_t **wide_arguments)
{
    const std::vector<std::wstring_view> wide_texts(wide_arguments, wide_arguments + argument_count);
    std::vector<std::string> texts;
    for (const std::wstring_view argument : wide_texts)
        texts.push_back(marlogl::utf8(argument));
    std::vector<const char *> arguments;
    for (const std::string &text : texts)
        arguments.push_back(text.c_str());
    arguments.push_back(nullptr);
    return marlogl::start(argument_count, arguments.data());
}

#else

int main(int argument_count, char **arguments)
{
    return marlogl::start(argument_count, arguments);
}

#endif
