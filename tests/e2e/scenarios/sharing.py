# SPDX-License-Identifier: GPL-3.0-or-later
import math
import os
import stat
import subprocess

from processes import expect, wait_for
from songs import SongFile
from sound import read_wave
from scenarios import scenario
from scenarios.steps import close, open_song
from scenarios.tunes import click_step, end_without_saving, ICON_Y, LAMP_Y

ZUMI = "Zumi"
SLOWEST_TEMPO = 80
SAVED = {"wav": "Good! Your song is saved as audio (.wav) file", "wma": "Good! Your song is saved as audio (.wma) file"}
BUTTONS = {"wav": "SavWavBtn", "wma": "SavWmaBtn"}


def choose_file(program, path):
    """Types a path into the file dialog."""
    program.wait_for_window("QFileDialog")
    program.type_into("fileNameEdit", path)
    program.desk.keyboard.press("Return")

    def is_answered():
        box = program.find("fileNameEdit")
        return not box or box.text != path  # another question may follow at once
    wait_for(f"the end of the question for {path}", is_answered)


def save_as_sound(program, kind, path):
    """Saves under a path; the program adds the extension."""
    program.click("SaveBtn")
    program.click(BUTTONS[kind], form="SongSelFrm")
    choose_file(program, os.path.splitext(path)[0])
    program.wait_for("NoteLbl1", SAVED[kind], form="Msg1Btn2NoteFrm", seconds=60)
    expect(program.text_of("NoteLbl2") == os.path.basename(path), "the message names another file")
    program.click("OkBtn", form="Msg1Btn2NoteFrm")
    program.wait_until_gone("SongSelFrm")


def probe(path, *entries):
    """What ffprobe reports about a file, by entry."""
    told = subprocess.run(["ffprobe", "-v", "error", "-show_entries", ":".join(entries), "-of", "default=nw=1", path],
                          check=True, text=True, stdout=subprocess.PIPE).stdout
    return dict(line.split("=", 1) for line in told.splitlines() if "=" in line)


def decode(path):
    """The frames of a file as ffmpeg decodes them, in 16-bit stereo."""
    return subprocess.run(["ffmpeg", "-v", "error", "-i", path, "-f", "s16le", "-ac", "2", "-ar", "44100", "-"],
                          check=True, stdout=subprocess.PIPE).stdout


def expect_zumi_as_wma(path, frames):
    told = probe(path, "stream=codec_name,sample_rate,channels", "format_tags=title,artist,copyright,comment,WM/Year")
    expect(told["codec_name"] == "wmav2" and told["sample_rate"] == "44100" and told["channels"] == "2",
           f"the WMA file is of another kind: {told}")
    expect(told["TAG:title"] == ZUMI, f"the WMA file has another title: {told}")
    expect(told["TAG:comment"] == "Tonquill Sprout Painter Song", f"the WMA file has another comment: {told}")
    decoded = decode(path)
    expect(0 <= len(decoded) - len(frames) <= 4 * 4096, f"{len(decoded)} bytes were decoded, {len(frames)} mixed")
    expect(signal_to_noise(frames, decoded) > 19.5, "the WMA file sounds otherwise than the song")


def signal_to_noise(wanted, heard):
    """In dB, over the frames of `wanted`, from every 16th sample."""
    pairs = zip(memoryview(wanted).cast("h")[::16], memoryview(heard).cast("h")[::16])
    signal = noise = 1e-9
    for sample, other in pairs:
        signal += sample * sample
        noise += (sample - other) ** 2
    return 10 * math.log10(signal / noise)


def loaded_libraries(program, name):
    with open(f"/proc/{program.process.pid}/maps", encoding="utf-8") as maps:
        return [line for line in maps if f"/{name}" in line]


def write_program(path, text):
    with open(path, "w", encoding="utf-8") as file:
        file.write("#!/bin/sh\n" + text)
    os.chmod(path, os.stat(path).st_mode | stat.S_IXUSR)


class MailDesk:
    """Stand-ins for the desktop's programs: what starts a mail program notes what it was given."""

    def __init__(self, desk, desktop_file):
        self.folder = os.path.join(desk.folder, "mail")
        self.applications = os.path.join(self.folder, "share", "applications")
        self.noted = os.path.join(self.folder, "noted")
        os.makedirs(self.applications)
        write_program(os.path.join(self.folder, "xdg-mime"), f"echo {desktop_file}\n")
        write_program(os.path.join(self.folder, "xdg-open"), f'printf "%s\\0" "$@" > {self.folder}/opened\n')
        self.environment = {"PATH": self.folder + ":" + os.environ["PATH"],
                            "XDG_DATA_DIRS": os.path.join(self.folder, "share") + ":/usr/share"}

    def add_program(self, name, desktop_file, categories):
        """Adds a program that notes its arguments, and its desktop file."""
        program = os.path.join(self.folder, name)
        write_program(program, f'printf "%s\\0" "$@" > {self.noted}.part\nmv {self.noted}.part {self.noted}\n')
        with open(os.path.join(self.applications, desktop_file), "w", encoding="utf-8") as file:
            file.write(f"[Desktop Entry]\nType=Application\nName={name}\nExec={program} %u\nCategories={categories}\n")

    def words(self):
        def read():
            if not os.path.exists(self.noted):
                return None
            with open(self.noted, encoding="utf-8") as file:
                return file.read().split("\0")[:-1]
        return wait_for("the mail program", read)


@scenario()
def TakeSongHome(desk):
    """Zumi leaves the program as WAV and WMA, with the same samples as the rendering, and by mail."""
    mail = MailDesk(desk, "letters.desktop")
    mail.add_program("xdg-email", "letters.desktop", "Network;Email;")
    program = desk.start(**mail.environment)
    program.wait_for("SngTitleLbl", ZUMI)
    rendered = desk.render(desk.song(ZUMI))

    wave = os.path.join(desk.folder, "Mine.wav")
    save_as_sound(program, "wav", wave)
    expect(not loaded_libraries(program, "libav"), "a library of the encoder is there before the first WMA file")
    expect(read_wave(wave) == rendered, "the WAV file is another sound than the rendered song")
    wma = os.path.join(desk.folder, "Mine.wma")
    save_as_sound(program, "wma", wma)
    expect(loaded_libraries(program, "libavcodec"), "the encoder's library is not seen where it must be")
    expect_zumi_as_wma(wma, rendered)
    left = sorted(name for name in os.listdir(desk.folder) if name.startswith(".Tqk"))
    expect(not left, f"files were left beside the sounds: {left}")

    program.click("EmailBtn")
    words = mail.words()
    attached = words[words.index("--attach") + 1]
    expect(words[words.index("--subject") + 1] == "Song i composed myself - Zumi", f"another subject: {words}")
    expect('"Zumi" I composed with Tonquill Sprout Painter\n' in words[words.index("--body") + 1],
           f"another body: {words}")
    expect(os.path.basename(attached) == "Zumi.wma", f"the friend sees another name: {attached}")
    expect_zumi_as_wma(attached, rendered)
    close(program)
    expect(os.path.exists(attached), "the mailed file went with the program")


@scenario()
def StopALongExport(desk):
    """Long work shows its progress; its Stop keeps the earlier file, and the window goes on."""
    song = SongFile(os.path.join(desk.program_folder, "Sprout", "Songs", ZUMI + ".TqSng"))
    song.lengthen(SLOWEST_TEMPO)
    os.makedirs(desk.songs)
    song.write(desk.song("Snail"))
    wma = os.path.join(desk.folder, "Mine.wma")
    with open(wma, "w", encoding="utf-8") as file:
        file.write("old")
    program = desk.start()
    open_song(program, "Snail")
    program.click("SaveBtn")
    program.click("SavWmaBtn", form="SongSelFrm")
    choose_file(program, wma)
    program.click("YesBtn", form="MsgYesNoFrm")
    program.click("StopBtn", form="WorkFrm")
    program.wait_until_gone("WorkFrm")
    expect(program.find("SavWmaBtn", form="SongSelFrm"), "the song window is gone")
    with open(wma, encoding="utf-8") as file:
        expect(file.read() == "old", "the file of before was changed")
    left = [name for name in os.listdir(desk.folder) if name.startswith(".Tqk")]
    expect(not left, f"files were left beside it: {left}")
    program.click("CancelBtn", form="SongSelFrm")
    program.wait_until_gone("SongSelFrm")
    close(program)


@scenario()
def MailByThunderbirdOrNobody(desk):
    """Thunderbird gets the song in its own way; if only a web browser takes mails, the song's place is shown."""
    mail = MailDesk(desk, "thunderbird.desktop")
    mail.add_program("thunderbird", "thunderbird.desktop", "Network;Email;")
    program = desk.start(**mail.environment)
    program.wait_for("SngTitleLbl", ZUMI)
    program.click("EmailBtn")
    words = mail.words()
    expect(words[0] == "-compose", f"Thunderbird was told: {words}")
    expect("attachment='file:///" in words[1] and "Zumi.wma'" in words[1], f"nothing is attached: {words}")
    expect("subject=Song%20i%20composed%20myself%20-%20Zumi," in words[1], f"another subject: {words}")

    close(program)

    write_program(os.path.join(mail.folder, "xdg-mime"), "echo browser.desktop\n")
    mail.add_program("browser", "browser.desktop", "Network;WebBrowser;")
    os.remove(mail.noted)
    program = desk.start(**mail.environment)
    program.wait_for("SngTitleLbl", ZUMI)
    program.click("EmailBtn")
    program.wait_for("NoteLbl1", "Failed to send email. Song is saved to file:", form="Msg1Btn2NoteFrm")
    told = program.text_of("NoteLbl2")
    program.click("OkBtn", form="Msg1Btn2NoteFrm")
    opened = os.path.join(mail.folder, "opened")
    wait_for("the folder of the song", lambda: os.path.exists(opened))
    expect(not os.path.exists(mail.noted), "the browser was started")
    expect("Zumi.wma" in told, f"the message tells {told}")
    close(program)


@scenario()
def HideTheMail(desk):
    """A setting for schools removes the mail button."""
    with open(desk.settings, "w", encoding="utf-8") as settings:
        settings.write("[General]\nHideEmail=1\n")
    program = desk.start()
    program.wait_for("HelpBtn")
    expect(not program.find("EmailBtn"), "the button is there")
    close(program)


@scenario()
def MakeBeatsOfOtherSounds(desk):
    """Recordings from phones and files of other players become instruments of 44,100 Hz and at most five seconds."""
    picture = os.path.join(desk.folder, "face.png")
    subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", "color=red:32x32", "-frames:v", "1", picture], check=True)
    program = desk.start()
    program.wait_for("SngTitleLbl", ZUMI)
    program.click("TrackAddBtn")
    program.wait_for_window("TuneFrm2")
    program.click("NewTuneBtn")
    click_step(desk, program, 1, LAMP_Y)
    click_step(desk, program, 1, ICON_Y)
    program.wait_for_window("BeatWindow")
    for number, (name, length) in enumerate({"voice.m4a": 2, "hum.ogg": 1, "long.mp3": 60}.items()):
        sound = os.path.join(desk.folder, name)
        subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", f"sine=440:sample_rate=48000:duration={length}", sound],
                       check=True)
        program.click("AddBtn", form="BeatWindow")
        if number == 0:
            program.click("OkBtn", form="Msg1BtnFrm")
        choose_file(program, sound)
        if length > 3:
            program.wait_for("NoteLbl2", "This will be trimmed to 3 seconds.", form="Msg1Btn2NoteFrm")
            program.click("OkBtn", form="Msg1Btn2NoteFrm")
        if number == 0:
            program.click("OkBtn", form="Msg1BtnFrm")
        choose_file(program, picture)
        program.wait_for("NmLbl", os.path.splitext(name)[0], form="BeatWindow")
        told = desk.info(os.path.join(desk.user_root, "Beats", os.path.splitext(name)[0] + ".wav"))["wave"]
        expect(told["rate"] == 44100 and told["bits"] == 16, f"{name} became {told}")
        expect(abs(told["length"] - min(length, 5) * 44100) < 3000, f"{name} became {told}")
    left = [name for name in os.listdir(desk.temp) if name.startswith("Tqk")]
    expect(not left, f"temporary files were left: {left}")
    program.click("CancelBtn", form="BeatWindow")
    program.wait_until_gone("BeatWindow")
    program.click("CancelBtn", form="TuneFrm2")
    program.wait_until_gone("TuneFrm2")
    end_without_saving(program)
