// The places every job works in (TempRoot, WorkFolder, ScratchFolder, ProgramFolder), the fixed
// file names in them, and the small file helpers that the jobs rely on.
#pragma once

#include <QString>

namespace quovara {

// How paths are joined. Paths are built by plain concatenation of the separator and a name;
// the separator is a parameter so that command lines can be produced for either style.
struct PathStyle {
    QChar sep;
    static PathStyle host();    // '/' here, '\' on Windows
    static PathStyle windows(); // '\'
    QString join(const QString& a, const QString& b) const { return a + sep + b; }
};

// Fixed file names in the WorkFolder (and the engine's temporary archive beside a target).
namespace names {
inline constexpr char WorkFolderName[] = "Corvana";
inline constexpr char ScratchFolderName[] = "Tessimo";
inline constexpr char ListScript[] = "Apri.bat";
inline constexpr char AddScript[] = "Archivia.bat";
inline constexpr char ExtractScript[] = "Estrai.bat";
inline constexpr char TestScript[] = "Testing.bat";
inline constexpr char SingleScript[] = "EstraiSingolo.bat";
inline constexpr char ListLog[] = "uharc.log";
inline constexpr char ConsoleOutput[] = "das.txt";
inline constexpr char Placeholder[] = "Prova.xt";
inline constexpr char EngineTempArchive[] = "UHA$0000.$$$";
inline constexpr char SfxStub[] = "SFX.exe";
} // namespace names

// The user's own temporary folder, asked afresh every time: $TMPDIR when it is set; else a
// private folder of this user inside the system temporary folder ("quovara-<user name>",
// created with mode 0700 when missing).
QString TempRoot();

// The private folder of user `userName` (uid `uid`) inside `systemTemp`, as TempRoot() makes it
// when TMPDIR is not set: "quovara-<user name>", or "quovara-<uid>" for a name that is empty or
// holds a separator.
QString PrivateTempFolderName(const QString& userName, uint uid);

// Checks that `folder` can hold our job scripts and logs: a real folder (not a link), owned by
// the user running the program, with no access for group or others. With `create`, a missing
// folder is made that way (mode 0700). Empty when it is fine; otherwise the reason in words
// ("it is a symbolic link", "it belongs to another user", ...).
QString PrivateFolderProblem(const QString& folder, bool create);

// Makes sure the WorkFolder (and the private TempRoot it lives in) exists and is private, as
// PrivateFolderProblem says. Empty when it is fine; otherwise the message to show, which names
// the folder and what is wrong. Nothing may be written into a WorkFolder that fails.
QString EnsurePrivateWorkFolder();

// The message for a folder that fails the check.
QString WorkFolderMessage(const QString& folder, const QString& problem);
// TempRoot + sep + "Corvana".
QString WorkFolder();
// TempRoot + sep + "Corvana" + sep + "Tessimo".
QString ScratchFolder();
// WorkFolder + sep + name.
QString WorkFile(const char* name);

// The folder holding the engine: QUOVARA_PROGRAM_DIR when set; else the executable's folder
// when it holds an engine file; else the per-user data folder (created on demand).
QString ProgramFolder();

// The folder ProgramFolder() answers, without making the per-user data folder when it is
// missing: for reports that must leave no trace (`quovara --version`).
QString ProgramFolderPath();

// Gets `folder` (a real folder, not a link) out of the way at once: it is renamed to
// "<folder>.old-<pid>-<n>" beside itself and deleted on a background thread, so that the caller
// never waits for a large tree. When the rename fails it is deleted here. False when it could
// be neither moved nor deleted; true also when there was no such folder.
bool MoveAsideAndDelete(const QString& folder);

// While one of these lives, the deletion of folders moved aside pauses between two files: a
// new mirror tree is made with the disk to itself, and the old one goes once it is done.
class BackgroundDeletesHeld {
public:
    BackgroundDeletesHeld();
    ~BackgroundDeletesHeld();
    BackgroundDeletesHeld(const BackgroundDeletesHeld&) = delete;
    BackgroundDeletesHeld& operator=(const BackgroundDeletesHeld&) = delete;
};

// Deletes the WorkFolder with everything in it when it exists; does not create it again.
// A WorkFolder that is a symbolic link is unlinked, never followed.
void CleanWorkFolder();

// Makes one folder; an existing folder or a failure is no error (failures are logged).
void MakeDir(const QString& path);

// True when the file's length can be read and is not zero: a missing file, a bad path and an
// empty file all answer false.
bool FileExists(const QString& path);

// The long form of a path. Linux has no short (8.3) names, so the long form is the path
// itself; the empty string when the path cannot be resolved (as the platform call gives).
QString LongPath(const QString& path);

} // namespace quovara
