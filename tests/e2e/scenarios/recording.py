# SPDX-License-Identifier: GPL-3.0-or-later
import os
import struct

from processes import expect, wait_for
from songs import SongFile
from sound import RATE, find_frames
from scenarios import scenario
from scenarios.steps import cell_place, close, expect_recording_of, play, save_song, stop, ROW_HEIGHT, ROW_MIDDLE

SECONDS = 1.5
AUDIO_TRACK = 3  # after the two of a new song


def ramp(seconds=SECONDS):
    """Frames that all differ from the one before: the frame's number, from 1, spread over both channels."""
    frames = bytearray()
    for number in range(1, int(seconds * RATE) + 1):
        frames += struct.pack("<hh", number % 181 - 90, (number // 181) % 20000 + 1)
    return bytes(frames)


def start_recording(program):
    program.click("TrackAddRecBtn")
    program.click("StartRecordingBtn", form="Msg3BtnFrm")
    program.wait_for("Rec_Stat_Lbl", "Now Recording", form="Recd_Frm")


def finish_recording(program):
    program.click("RecFinishBtn", form="Recd_Frm")
    program.wait_until_gone("Recd_Frm")


def new_song(program):
    program.click("NewBtn")
    program.wait_for("SngTitleLbl", "Untitled")


def paint_voice(desk, program):
    """Paints the audio track over the whole length of the recording."""
    canvas = program.wait_for("TrackPic")
    program.click("BrushBtn")
    desk.mouse.drag([cell_place(canvas, AUDIO_TRACK, cell) for cell in range(1, 140)])


def capture_files(desk):
    return sorted(name for name in os.listdir(desk.temp) if name.startswith("Tqk"))


def expect_no_voice_left(desk):
    left = capture_files(desk)
    expect(not left, f"a child's voice was left in the temporary folder: {left}")


def expect_voice(desk, song, wanted):
    """The frames that were played into the microphone are on the painted track. Returns all that sounds there."""
    told = desk.info(song)["song"]["tracks"]
    expect(len(told) == AUDIO_TRACK and told[-1]["audio"], "there is no audio track")
    heard = track_frames(desk, song, AUDIO_TRACK)
    expect(find_frames(heard, wanted) >= 0, "what was played into the microphone is not on the track")
    return heard


def track_frames(desk, song, track):
    """The sound of an audio track that is painted over its whole length."""
    return desk.render(song, "--track", track)


@scenario()
def RecordEditAndPlay(desk):
    """A child's voice becomes a track, sample for sample; edited and painted, it is heard as it is saved."""
    microphone = desk.sound.plug_in_microphone()
    program = desk.start()
    new_song(program)
    wanted = ramp()
    start_recording(program)
    microphone.hear(wanted)
    finish_recording(program)
    paint_voice(desk, program)
    save_song(program, "Voice")
    heard = expect_voice(desk, desk.song("Voice"), wanted)
    painted = SongFile(desk.song("Voice")).painted(AUDIO_TRACK)
    expect(painted[:139] == list(range(1, 140)), "the track is painted otherwise")

    # Everything a quarter louder.
    strip = program.wait_for("TrackTitlePic")
    desk.mouse.move(strip.at(40, (AUDIO_TRACK - 1) * ROW_HEIGHT + ROW_MIDDLE))
    program.click("TrackAudioBtn")
    wave = program.wait_for("WavePic", form="AudioEditFrm")
    desk.mouse.drag([wave.at(x, wave.height // 2) for x in range(1, wave.width, max(1, wave.width // 40))]
                    + [wave.at(wave.width - 1, wave.height // 2)])
    program.click("VolumeUpBtn", form="AudioEditFrm")
    program.click("OkBtn", form="AudioEditFrm")
    program.wait_until_gone("AudioEditFrm")
    save_song(program)
    louder = track_frames(desk, desk.song("Voice"), AUDIO_TRACK)
    loudest = max(memoryview(louder).cast("h"))
    expect(loudest == round(1.25 * max(memoryview(heard).cast("h"))), f"the loudest sample is {loudest} now")

    stop(desk, program)  # the editor has played its sound
    recording = play(desk, program)
    wait_for("the sound", recording.sounds)
    expect_recording_of(desk, program, recording, desk.song("Voice"))
    expect_no_voice_left(desk)
    close(program)


@scenario()
def RecordWithoutMicrophone(desk):
    """Without a microphone the child is told, and the computer's own sound is never recorded."""
    program = desk.start()
    program.click("TrackAddRecBtn")
    program.click("StartRecordingBtn", form="Msg3BtnFrm")
    program.wait_for("NoteLbl1", "Failed to create DirectX Sound Capture Buffer.")
    expect(program.text_of("NoteLbl2") == "Please plug in a microphone.", "what can be done is not told")
    program.click("OkBtn", form="Msg1Btn2NoteFrm")
    program.wait_until_gone("Msg1Btn2NoteFrm")
    expect(not program.find("Rec_Stat_Lbl"), "the recording window opened")
    program.click("CloseImgBtn")
    expect(program.wait_for_end() == 0, "the program did not end well")


@scenario()
def TwoProgramsRecord(desk):
    """Two children record at once with two programs: each gets the whole sound and none of the other's files."""
    microphone = desk.sound.plug_in_microphone()
    programs = {name: desk.start(name=name) for name in ("Anna", "Ben")}
    for program in programs.values():
        program.to_front("MainFrm")
        new_song(program)
        start_recording(program)
    expect(len(capture_files(desk)) == 4, f"two programs do not write two files each: {capture_files(desk)}")
    wanted = ramp()
    microphone.hear(wanted)
    for name, program in programs.items():
        program.to_front("Recd_Frm")
        finish_recording(program)
        program.to_front("MainFrm")  # the form also brought the other program's window to the front
        paint_voice(desk, program)
        save_song(program, name)
        expect_voice(desk, desk.song(name), wanted)
        close(program)
    expect_no_voice_left(desk)


@scenario()
def KillWhileRecording(desk):
    """A program that is killed while it records leaves its files; the next start deletes them."""
    desk.sound.plug_in_microphone()
    program = desk.start()
    start_recording(program)
    expect(len(capture_files(desk)) == 2, "nothing is recorded")
    program.process.kill()
    program.process.wait()
    expect(len(capture_files(desk)) == 2, "the files went with the program")
    program = desk.start()
    wait_for("the end of the left files", lambda: not capture_files(desk))
