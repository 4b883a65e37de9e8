// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/IniFile.h"
#include "fuzz/FuzzSupport.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sprout;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    IniFile ini(bytes);
    static_cast<void>(ini.Value("General", bytes.substr(0, bytes.find('=')), ""));
    ini.SetValue("General", "key", "value");
    const IniFile again(ini.Bytes());
    if (again.Value("General", "key", "") != "value")
        __builtin_trap();
    ini.RemoveSection("General");
    if (IniFile(ini.Bytes()).Has("General", "key"))
        __builtin_trap();
    return 0;
}
