// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/PictureFiles.h"

namespace sprout {

/// `PictureFiles` on Qt's image readers. Needs neither a display nor an application object.
class QtPictureFiles : public PictureFiles {
public:
    [[nodiscard]] Picture LoadPicture(const std::filesystem::path& path) const override;
    [[nodiscard]] std::vector<std::byte> EncodeBmp(const Picture& picture) const override;
    void SavePicture(const Picture& picture, const std::filesystem::path& path) const override;
};

} // namespace sprout
