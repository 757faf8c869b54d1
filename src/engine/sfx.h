// Assembling a self-extracting executable: the stub program, then the archive, the engine and a
// settings record, each section after its marker. The stub finds the sections by their markers;
// nothing else (no sizes, no offsets) is written.
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

namespace quovara {

// Markers: the text followed by the byte 0x05.
inline constexpr char SfxArchiveMarker[] = "FileSFX\x05";
inline constexpr char SfxEngineMarker[] = "UharcSFX\x05";
inline constexpr char SfxInfoMarker[] = "InfoScript\x05";
inline constexpr char SfxSeparator[] = "<|>";

// Status texts while the SFX is built.
inline constexpr char SfxBusyState[] = QT_TRANSLATE_NOOP("Sfx", "Quovara is creating the SFX");
inline constexpr char SfxBusyHint[] = QT_TRANSLATE_NOOP("Sfx", "Please Wait ...");
inline constexpr char ReadyState[] = QT_TRANSLATE_NOOP("Sfx", "Quovara is ready");
inline constexpr char ReadyHint[] = QT_TRANSLATE_NOOP("Sfx", "Select an action");
inline constexpr char SfxCreatedMessage[] = QT_TRANSLATE_NOOP("Sfx", "SFX Created");

// The seven texts of the settings record, in the order they are written.
struct SfxSettings {
    QString extractPath; // "Path To Extract"
    QString runBefore;
    QString runAfter;
    QString sfxText; // at most 156 characters in the dialog
    QString sfxTitle;
    QString licenceText;
    QString licenceTitle;
};

// How the assembly speaks to the window: the state and hint lines, one repaint, the closing
// message and failures.
class SfxFeedback {
public:
    virtual ~SfxFeedback() = default;
    virtual void setState(const QString& text) = 0; // the main window's state line
    virtual void setHint(const QString& text) = 0;  // the main window's hint line
    virtual void repaint() = 0;                     // let the interface show the texts once
    virtual void information(const QString& text) = 0;
    virtual void critical(const QString& text) = 0;
};

// The settings record: the seven texts joined by "<|>" (six separators, none at either end),
// as typed (line breaks and separators inside a text are not escaped), in the 8-bit code page.
QByteArray SfxInfoText(const SfxSettings& settings);

// Builds `outputPath` from the stub "SFX.exe" and the engine "Uharc.exe" of `programFolder`,
// the archive at `archivePath` and the settings. The archive and the engine are copied in
// pieces, so memory use does not grow with their size. The output appears only when it is
// complete: a missing stub, engine or archive, or a failed write, is reported through
// `feedback` (naming the file) and leaves no output file behind. True on success.
bool BuildSfx(const QString& outputPath, const QString& archivePath, const QString& programFolder,
              const SfxSettings& settings, SfxFeedback& feedback);

} // namespace quovara
