// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

class Desktop;
class Files;
class FolderCopies;
class Machine;
class Mail;
class Messages;
class PictureFiles;
class PlayDisplay;
class PrivateFolders;
class Screen;
class SoundCapture;
class SoundOutput;
class SoundReader;
class Stretch;
class WmaEncoder;

/// The services that the program runs on. The program's start code fills it once, before anything else; the objects
/// outlive every use. A service that a program does not use may stay null.
struct Services {
    Messages* messages = nullptr;
    Screen* screen = nullptr;
    Files* files = nullptr;
    Machine* machine = nullptr;
    Desktop* desktop = nullptr;
    PictureFiles* pictures = nullptr;
    Stretch* stretch = nullptr;
    SoundOutput* sound = nullptr;
    PlayDisplay* playDisplay = nullptr;
    WmaEncoder* wma = nullptr;
    SoundReader* soundReader = nullptr;
    SoundCapture* capture = nullptr;
    Mail* mail = nullptr;
    PrivateFolders* privateFolders = nullptr;
    FolderCopies* folderCopies = nullptr;
};

namespace shared {
inline Services services;
}

/// The one shared instance.
inline Services& TheServices()
{
    return shared::services;
}

} // namespace sprout
