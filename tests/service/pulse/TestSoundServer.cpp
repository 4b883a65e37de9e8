// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/TestSoundServer.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <span>
#include <utility>

#include "base/PcmSound.h"

namespace sprout {
namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::seconds kPatience{30};
constexpr const char* kStarter = SPROUT_TEST_SUPPORT "/sound-server";
constexpr std::array kVariables{"PULSE_SERVER", "PULSE_RUNTIME_PATH", "PULSE_STATE_PATH", "XDG_RUNTIME_DIR"};

/// Starts a program that ends with this one at the latest. out: where its standard output goes; -1: nowhere.
pid_t Start(std::vector<std::string> words, int out)
{
    words.insert(words.begin(), {"setpriv", "--pdeathsig", "KILL"});
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    if (out >= 0)
        posix_spawn_file_actions_adddup2(&files, out, STDOUT_FILENO);
    pid_t process = 0;
    const int failed = posix_spawnp(&process, words[0].c_str(), &files, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    return failed == 0 ? process : 0;
}

void End(pid_t process)
{
    if (process == 0)
        return;
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

std::vector<std::string> DeviceWords(const SoundFormat& format)
{
    return {format.Bits == 8 ? "u8" : "s16le", std::to_string(format.Rate), std::to_string(format.Channels)};
}

} // namespace

TestSoundServer::TestSoundServer(const SoundFormat& deviceFormat, Rewinds rewinds)
    : format(deviceFormat), deviceRewinds(rewinds)
{
    for (const char* const variable : kVariables)
        setenv(variable, folder.Path().c_str(), 1);
    setenv("PULSE_SERVER", ("unix:" + socket).c_str(), 1);
}

TestSoundServer::~TestSoundServer()
{
    Kill();
    for (const char* const variable : kVariables)
        unsetenv(variable);
}

bool TestSoundServer::Start()
{
    std::vector<std::string> words{"env", "-u", "PULSE_SERVER", "HOME=" + folder.Path().string(), kStarter, socket};
    for (const std::string& word : DeviceWords(format))
        words.push_back(word);
    if (deviceRewinds == Rewinds::No)
        words.emplace_back("norewinds=1");
    process = sprout::Start(std::move(words), -1);
    const auto latest = Clock::now() + kPatience;
    while (process != 0 && !Listens() && Clock::now() < latest)
        usleep(2000);
    return Listens();
}

bool TestSoundServer::Listens() const
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    socket.copy(address.sun_path, sizeof address.sun_path - 1);
    const int client = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool listens = connect(client, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(client);
    return listens;
}

void TestSoundServer::Kill()
{
    End(std::exchange(process, 0));
    std::filesystem::remove(socket);
}

void TestSoundServer::Freeze() const
{
    kill(process, SIGSTOP);
    waitpid(process, nullptr, WUNTRACED);
}

void TestSoundServer::Thaw() const
{
    kill(process, SIGCONT);
}

bool TestSoundServer::FreezesWithItsDevice() const
{
    return Told({"env", "LC_ALL=C", "pactl", "info"}).find("PipeWire") == std::string::npos;
}

std::string TestSoundServer::Told(const std::vector<std::string>& question) const
{
    const std::string list = folder.Path() / ("told" + std::to_string(++questions));
    const int out = open(list.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
    const pid_t lister = sprout::Start(question, out);
    close(out);
    int status = 0;
    waitpid(lister, &status, 0);
    return status == 0 ? ReadBytes(list) : "no answer";
}

bool TestSoundServer::Does(std::vector<std::string> command) const
{
    command.insert(command.begin(), "pactl");
    return Told(command) != "no answer";
}

bool TestSoundServer::AddMicrophone(const std::string& name)
{
    return Does({"load-module", "module-null-sink", "sink_name=" + name, "format=s16le", "rate=44100", "channels=2",
                 "norewinds=1"}) &&
           PutBack(name);
}

std::string TestSoundServer::Play(const std::string& sink, const std::string& file) const
{
    // By default it stays seconds ahead, so neither it nor the server ever pauses too long.
    return Told({"pacat", "-p", "--raw", "--format=s16le", "--rate=44100", "--channels=2", "-d", sink, file});
}

bool TestSoundServer::PullOut(const std::string& name)
{
    return Does({"unload-module", microphones[name]});
}

bool TestSoundServer::PutBack(const std::string& name)
{
    const std::string mic = name + "-mic";
    const std::string description = "device.description=" + name + "-for-people";
    const std::string pipeWire = socket + ".pipewire";
    const bool isPipeWire = std::filesystem::exists(pipeWire);
    std::string& number = microphones[name];
    // PipeWire's remapped sources take the newest piece and drop those before it. Linked devices lose nothing.
    number = isPipeWire ? Told({"pactl", "load-module", "module-null-sink", "media.class=Audio/Source/Virtual",
                                "sink_name=" + mic, "sink_properties=" + description})
                        : Told({"pactl", "load-module", "module-remap-source", "source_name=" + mic,
                                "master=" + name + ".monitor", "source_properties=" + description});
    while (!number.empty() && number.back() == '\n')
        number.pop_back();
    if (number == "no answer")
        return false;
    const auto link = [&](const std::string& side) {
        const auto latest = Clock::now() + kPatience; // the devices' ports come later than they do
        while (Told({"env", "PIPEWIRE_REMOTE=" + pipeWire, "pw-link", name + ":monitor_" + side,
                     mic + ":input_" + side}) == "no answer")
            if (Clock::now() > latest)
                return false;
        return true;
    };
    return !isPipeWire || (link("FL") && link("FR"));
}

std::string TestSoundServer::Inputs() const
{
    return Told({"pactl", "list", "short", "sink-inputs"});
}

bool TestSoundServer::HasStoppedInput() const
{
    return Told({"env", "LC_ALL=C", "pactl", "list", "sink-inputs"}).find("Corked: yes") != std::string::npos;
}

TestRecording::TestRecording(const TestSoundServer& soundServer)
    : server(soundServer), silence(SilenceOf(server.Format()))
{
    std::array<int, 2> pipe{};
    if (pipe2(pipe.data(), O_CLOEXEC) != 0)
        return;
    output = pipe[0];
    const SoundFormat& format = server.Format();
    process = Start({"parec", "--latency-msec=10", "--raw", "-d", "out.monitor",
                     std::string("--format=") + (format.Bits == 8 ? "u8" : "s16le"),
                     "--rate=" + std::to_string(format.Rate), "--channels=" + std::to_string(format.Channels)},
                    pipe[1]);
    close(pipe[1]);
    reader = std::thread([this] { Read(); });
    static_cast<void>(Comes([](const Bytes& bytes) { return !bytes.empty(); }));
}

TestRecording::~TestRecording()
{
    End(process); // which ends the reader
    if (reader.joinable())
        reader.join();
    if (output >= 0)
        close(output);
}

void TestRecording::Read()
{
    Bytes piece(4096);
    for (ssize_t count = 1; count > 0;) {
        count = read(output, piece.data(), piece.size());
        const std::lock_guard lock(mutex);
        const Bytes bytes(piece.begin(), piece.begin() + std::max<ssize_t>(0, count));
        recorded.insert(recorded.end(), bytes.begin(), bytes.end());
        if (listener)
            listener(bytes);
        arrived.notify_all();
    }
}

void TestRecording::SetListener(Listener newListener)
{
    const std::lock_guard lock(mutex);
    listener = std::move(newListener);
}

bool TestRecording::Comes(const std::function<bool(const Bytes&)>& condition)
{
    std::unique_lock lock(mutex);
    return arrived.wait_for(lock, kPatience, [&] { return condition(recorded); });
}

bool TestRecording::Sounds()
{
    return Comes([this](const Bytes& bytes) {
        return std::any_of(bytes.begin(), bytes.end(), [this](std::byte byte) { return byte != silence; });
    });
}

bool TestRecording::Holds(const Bytes& sound)
{
    return Comes([&](const Bytes& bytes) {
        return std::search(bytes.begin(), bytes.end(), sound.begin(), sound.end()) != bytes.end();
    });
}

bool TestRecording::CatchesUp()
{
    // A sound of another program is recorded behind all that was heard before it. Its bytes are above those of the
    // tests' own sounds. A device that gives back what it has not played yet loses its beginning.
    // Some servers report the last piece as heard that they are still giving to the device.
    constexpr std::size_t kLongestPiece = 44100; // 250 ms
    constexpr std::size_t kMarkBytes = 16000;
    constexpr std::size_t kSurelyHeard = 2000;
    constexpr std::byte kLeast{0x80};
    std::string bytes;
    std::minstd_rand random;
    while (bytes.size() < kMarkBytes)
        bytes.push_back(static_cast<char>(std::to_integer<unsigned>(kLeast) + random() % 127));
    const std::string file = server.Folder().Path() / "mark";
    WriteBytes(file, bytes);
    const std::span<const std::byte> last = std::as_bytes(std::span(bytes)).last(kSurelyHeard);
    if (!Grows(kLongestPiece) || server.Play("out", file) != "")
        return false;
    const bool came = Holds(Bytes(last.begin(), last.end()));
    const std::lock_guard lock(mutex);
    std::replace_if(
        recorded.begin(), recorded.end(), [](std::byte byte) { return byte >= kLeast; }, silence);
    return came;
}

bool TestRecording::Grows(std::size_t bytes)
{
    std::size_t wanted = 0;
    return Comes([&](const Bytes& all) {
        wanted = wanted == 0 ? all.size() + bytes : wanted;
        return all.size() >= wanted;
    });
}

Bytes TestRecording::Sounded()
{
    const std::lock_guard lock(mutex);
    const auto sounds = [this](std::byte byte) { return byte != silence; };
    const auto first = std::find_if(recorded.begin(), recorded.end(), sounds);
    const auto last = std::find_if(recorded.rbegin(), recorded.rend(), sounds).base();
    return first < last ? Bytes(first, last) : Bytes();
}

} // namespace sprout
