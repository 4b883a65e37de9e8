// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "service/Files.h"
#include "service/WmaEncoder.h"

namespace sprout {

/// An encoder that logs its calls and writes the bytes unchanged. Each of its steps can fail.
class FakeWmaEncoder : public WmaEncoder {
public:
    [[nodiscard]] bool Load() override
    {
        ++loads;
        return isThere;
    }
    [[nodiscard]] std::int32_t FormatListLength() override
    {
        return listLength.value_or(static_cast<std::int32_t>(list.size()));
    }
    [[nodiscard]] std::optional<std::string> FormatList() override
    {
        ++lists;
        return listFails ? std::nullopt : std::optional(list);
    }
    [[nodiscard]] std::unique_ptr<WmaFile> Open(Replacement& target, const WmaFormat& format) override
    {
        formats.push_back(format);
        return openFails ? nullptr : std::make_unique<File>(*this, target);
    }

    bool isThere = true;
    std::string list = "Windows Media Audio 2\r\n64 kbit/s\n64000\n44100\n2\n16";
    std::optional<std::int32_t> listLength; ///< returned instead of the real one
    bool listFails = false;
    bool openFails = false;
    int writesThatGoWell = 1000000;
    bool closeFails = false;

    int loads = 0;
    int lists = 0;
    std::vector<WmaFormat> formats;
    std::vector<WmaTags> tags;
    std::vector<std::size_t> writes; ///< the number of bytes in each
    int closes = 0;

private:
    class File : public WmaFile {
    public:
        File(FakeWmaEncoder& fake, Replacement& file) : encoder(fake), target(file) {}
        void SetTags(const WmaTags& given) override { encoder.tags.push_back(given); }
        [[nodiscard]] bool Write(std::span<const std::byte> samples) override
        {
            encoder.writes.push_back(samples.size());
            if (encoder.writes.size() > static_cast<std::size_t>(encoder.writesThatGoWell))
                return false;
            try {
                target.Write(samples);
            } catch (const RunTimeError&) {
                return false;
            }
            return true;
        }
        [[nodiscard]] bool Close() override
        {
            ++encoder.closes;
            return !encoder.closeFails;
        }

    private:
        FakeWmaEncoder& encoder;
        Replacement& target;
    };
};

} // namespace sprout
