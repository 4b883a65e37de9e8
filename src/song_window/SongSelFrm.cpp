// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/SongSelFrm.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <exception>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "core/Shared.h"
#include "service/Messages.h"
#include "service/Services.h"
#include "song_window/NameDecision.h"
#include "song_window/SongList.h"
#include "ui/Artwork.h"
#include "ui/Dialogs.h"
#include "ui/HelpFrm.h"
#include "ui/Look.h"
#include "ui/MessageForms.h"
#include "ui/Palette.h"
#include "ui/QtText.h"
#include "ui/Windows.h"

namespace sprout {

namespace {

constexpr int kSongMargin = 16;
constexpr int kListWidth = 360;
constexpr int kLabelHeight = 24;
constexpr int kSongNameHeight = 34;
constexpr int kModePicSide = 30;
constexpr int kModePicInset = 4; ///< of the drawing in the picture
constexpr int kSongRowGap = 12;
constexpr int kColumnGap = 8;

constexpr std::string_view kSelectSongHint = "Click on the song name in the list to select one";
constexpr const char* kSavWavHint = "Select wav file name to save the song as audio (.wav) file";
constexpr const char* kSavWmaHint = "Select wma file name to save the song as audio (.wma) file";

const char* PictureOf(SongSelMode mode)
{
    switch (mode) {
    case SongSelMode::Open:
        return "buttons/OpenBtn";
    case SongSelMode::Save:
        return "buttons/SaveBtn";
    default:
        return "buttons/NewBtn";
    }
}

void Hint(std::string_view text)
{
    ShowHint(QtText(text));
}

} // namespace

SongSelFrm::SongSelFrm(QWidget* parent) : BandedForm(parent)
{
    setObjectName(QStringLiteral("SongSelFrm"));
    ShowHintsInBand();
    MakeLabels();
    MakeList();
    MakeNameBox();
    MakeButtons();
}

void SongSelFrm::MakeLabels()
{
    ModePic = &AddLabel("ModePic");
    ListTitleLbl = &AddLabel("ListTitleLbl");
    TextTitleLbl = &AddLabel("TextTitleLbl");
    SongNmLbl = &AddLabel("SongNmLbl");
    SongNmLbl->setText(tr("Song name"));
}

void SongSelFrm::MakeList()
{
    SngNmLst = new SongList(this);
    SngNmLst->setObjectName(QStringLiteral("SngNmLst"));
    SngNmLst->setAccessibleName(tr("Songs"));
    connect(SngNmLst, &QListWidget::itemSelectionChanged, this, [this] { TakeSelectedName(); });
    connect(SngNmLst, &QListWidget::itemClicked, this, [this] { TakeSelectedName(); });
    connect(SngNmLst, &QListWidget::itemDoubleClicked, this, [this] { OkBtn->click(); });
}

void SongSelFrm::MakeNameBox()
{
    SongNameTxt = new QLineEdit(this);
    SongNameTxt->setObjectName(QStringLiteral("SongNameTxt"));
    SongNameTxt->setAccessibleName(SongNmLbl->text());
    SongNameTxt->setMaxLength(0x7FFFFFFF); // the file system limits names, the box does not
    SongNameTxt->installEventFilter(this);
    ForbidCharacters(*SongNameTxt, QStringLiteral("./\\:*?\"<>"));
    Watcher().Watch(*SongNameTxt, "Type your song name here");
}

void SongSelFrm::MakeButtons()
{
    OkBtn = &AddWordButton({"OkBtn", "OK", "", Plate::Word, kDeepLeaf}, [this] { ClickOk(); });
    CancelBtn = &AddWordButton({"CancelBtn", "Cancel", "", Plate::Word, kStone}, [this] { reject(); });
    columnButtons = {
        &AddWordButton({"CopyBtn", "Copy", "Copy button, select a song and use this button to copy it to make one more",
                        Plate::Word, kLink, "WordCopy"},
                       [this] { Try("Error Copying file", &SongSelFrm::CopySelected); }),
        &AddWordButton({"DeleteBtn", "Delete", "Delete button, select a song and use this button to delete it",
                        Plate::Word, kCoral, "WordDelete"},
                       [this] { Try("Error Deleting file", &SongSelFrm::DeleteSelected); }),
        &AddWordButton({"RenameBtn", "Rename", "Rename button, select a song and use this button to change it's name",
                        Plate::Word, kLink, "WordRename"},
                       [this] { Try("Error Renaming file", &SongSelFrm::RenameSelected); }),
        &AddWordButton({"HelpBtn", "Help", "", Plate::Word, kBerry, "WordHelp"}, [this] { ClickHelp(); })};
    soundFileButtons = {&AddWordButton({"SavWavBtn", "Wav file", kSavWavHint, Plate::Word, kLink, "WordWave"},
                                       [this] { SaveAsSound(SoundFileKind::Wav); }),
                        &AddWordButton({"SavWmaBtn", "Wma file", kSavWmaHint, Plate::Word, kLink, "WordWma"},
                                       [this] { SaveAsSound(SoundFileKind::Wma); })};
}

void SongSelFrm::InitilizeThisWindow(SongSelMode newMode)
{
    mode = newMode;
    const SongSelLayout& layout = LayoutOf(mode);
    SetCaption(layout.Caption);
    ModePic->setPixmap(
        Artwork(QString::fromLatin1(PictureOf(mode)), QSize(kModePicSide, kModePicSide), devicePixelRatioF()));
    ListTitleLbl->setText(QtText(layout.ListTitle));
    TextTitleLbl->setText(QtText(layout.TextTitle));
    OkBtn->SetHint(QtText(layout.OkHint));
    SngNmLst->setAccessibleDescription(QtText(layout.ListHint));
    Watcher().Watch(*SngNmLst->viewport(), layout.ListHint);
    for (QWidget* widget : std::initializer_list<QWidget*>{TextTitleLbl, SongNmLbl, SongNameTxt})
        widget->setVisible(layout.HasNameBox);
    for (QWidget* button : soundFileButtons)
        button->setVisible(layout.HasSoundFiles);
    PlaceControls();
    LoadSongNames();
    (layout.HasNameBox ? static_cast<QWidget*>(SongNameTxt) : SngNmLst)->setFocus();
}

void SongSelFrm::SetSongName(std::string_view name)
{
    SongNameTxt->setText(QtText(name));
    SongNameTxt->selectAll();
}

void SongSelFrm::PlaceControls()
{
    const SongSelLayout& layout = LayoutOf(mode);
    const int listBottom = layout.ListTop + layout.ListHeight;
    const int pictureLeft = kSongMargin - kModePicInset;
    const int titleLeft = pictureLeft + kModePicSide;
    ModePic->setGeometry({BodyPoint(pictureLeft, layout.ListTitleTop - (kModePicSide - kLabelHeight) / 2),
                          QSize(kModePicSide, kModePicSide)});
    ListTitleLbl->setGeometry(
        {BodyPoint(titleLeft, layout.ListTitleTop), QSize(kSongMargin + kListWidth - titleLeft, kLabelHeight)});
    SngNmLst->setGeometry({BodyPoint(kSongMargin, layout.ListTop), QSize(kListWidth, layout.ListHeight)});
    PlaceColumn(layout.ListTop, listBottom);
    if (layout.HasNameBox)
        PlaceNameBox(listBottom + 6);
    PlaceRow(layout.HasNameBox ? listBottom + 6 + kLabelHeight + kSongNameHeight + 16 : listBottom + 14);
}

void SongSelFrm::PlaceColumn(int top, int bottom)
{
    int columnWidth = 0;
    for (const ImageButton* button : columnButtons)
        columnWidth = std::max(columnWidth, button->sizeHint().width());
    for (ImageButton* button : columnButtons) {
        button->setGeometry({BodyPoint(2 * kSongMargin + kListWidth, top), QSize(columnWidth, button->height())});
        top += button->height() + kColumnGap;
    }
    ImageButton& helpBtn = *columnButtons.back();
    helpBtn.move(helpBtn.x(), kBandHeight + bottom - helpBtn.height());
    resize(3 * kSongMargin + kListWidth + columnWidth, height());
}

void SongSelFrm::PlaceNameBox(int top)
{
    const int nameLeft = kSongMargin + SongNmLbl->sizeHint().width() + 8;
    // The title begins with a blank; the label below it does not.
    const int titleLeft = kSongMargin - TextTitleLbl->fontMetrics().horizontalAdvance(QChar(u' '));
    TextTitleLbl->setGeometry({BodyPoint(titleLeft, top), QSize(width() - titleLeft - kSongMargin, kLabelHeight)});
    SongNmLbl->setGeometry(
        {BodyPoint(kSongMargin, top + kLabelHeight + 2), QSize(nameLeft - kSongMargin, kSongNameHeight)});
    SongNameTxt->setGeometry(
        {BodyPoint(nameLeft, top + kLabelHeight + 2), QSize(width() - nameLeft - kSongMargin, kSongNameHeight)});
}

void SongSelFrm::PlaceRow(int top)
{
    int right = width() - kSongMargin;
    for (auto button = soundFileButtons.rbegin(); button != soundFileButtons.rend(); ++button) {
        (*button)->move(BodyPoint(right - (*button)->width(), top));
        right -= (*button)->width() + kSongRowGap;
    }
    OkBtn->move(BodyPoint(kSongMargin, top));
    CancelBtn->move(BodyPoint(kSongMargin + OkBtn->width() + kSongRowGap, top));
    resize(width(), kBandHeight + top + OkBtn->height() + kSongRowGap);
}

void SongSelFrm::LoadSongNames()
{
    songs = ListSongs(Shared().UserSongs);
    const QSignalBlocker quiet(SngNmLst);
    SngNmLst->clear();
    for (const SongFile& song : songs) {
        auto* line = new QListWidgetItem(QtText(song.Name), SngNmLst);
        line->setToolTip(QStringLiteral("<p>%1</p>").arg(line->text().toHtmlEscaped())); // names are not rich text
    }
    if (songs.empty())
        (new QListWidgetItem(QtText(LayoutOf(mode).NothingFound), SngNmLst))->setFlags(Qt::NoItemFlags);
}

int SongSelFrm::SelectedRow() const
{
    const QList<QListWidgetItem*> selected = SngNmLst->selectedItems();
    return selected.isEmpty() ? -1 : SngNmLst->row(selected.front());
}

/// A selection by the program does not change the typed name.
void SongSelFrm::SelectRow(int row)
{
    const QSignalBlocker quiet(SngNmLst);
    SngNmLst->setCurrentRow(row);
}

void SongSelFrm::TakeSelectedName()
{
    if (SelectedRow() >= 0 && !songs.empty())
        SongNameTxt->setText(QtText(songs[static_cast<std::size_t>(SelectedRow())].Name));
}

bool SongSelFrm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == SongNameTxt && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
            return QCoreApplication::sendEvent(SngNmLst, event);
    }
    return BandedForm::eventFilter(watched, event);
}

void SongSelFrm::reject()
{
    Hint("");
    BandedForm::reject();
}

void SongSelFrm::ClickOk()
{
    Hint("");
    if (mode == SongSelMode::Open)
        OpenSelected();
    else
        AcceptTypedName();
}

void SongSelFrm::OpenSelected()
{
    if (IsSongSelected("Song not selected."))
        Accept(songs[static_cast<std::size_t>(SelectedRow())].Name);
}

bool SongSelFrm::IsSongSelected(std::string_view message)
{
    if (!songs.empty() && SelectedRow() >= 0)
        return true;
    Hint(kSelectSongHint);
    ShowMessage(message);
    Hint("");
    return false;
}

void SongSelFrm::AcceptTypedName()
{
    const std::string name = SongNameTxt->text().toStdString();
    const bool saving = mode == SongSelMode::Save;
    switch (DecideName(mode, name, songs)) {
    case NameDecision::AskForName:
        if (saving)
            Hint("Type a name in song name text box");
        ShowMessage("Please enter a song name.");
        if (saving)
            Hint("");
        break;
    case NameDecision::AskToOverwrite:
        if (!MayOverwrite(name))
            break;
        [[fallthrough]];
    case NameDecision::Accept:
        Accept(name);
    }
}

bool SongSelFrm::MayOverwrite(std::string_view name)
{
    if (mode == SongSelMode::Save)
        Hint("Recommended to click 'No' and then save with another name");
    const bool yes =
        AskYesNo("A song with this name already exists: " + std::string(name), "Do you wish to overwrite?") == 1;
    Hint("");
    return yes;
}

void SongSelFrm::Accept(std::string_view name)
{
    ChosenName = name;
    Ok = true;
    Answer(1);
}

void SongSelFrm::CopySelected()
{
    if (!IsSongSelected("Select a song to copy"))
        return;
    const int row = SelectedRow();
    const SongFile song = songs[static_cast<std::size_t>(row)];
    const std::string newName = FreeCopyName(songs, song.Name);
    CopySong(song, newName);
    LoadSongNames();
    SelectRow(RowAfterChange(row, static_cast<int>(songs.size())));
    ShowMessage("The song \"" + song.Name + "\"", "is copied to \"" + newName + "\"");
}

void SongSelFrm::DeleteSelected()
{
    if (!IsSongSelected("Select a song to delete."))
        return;
    Hint("Click Yes to delete, No to keep");
    const int row = SelectedRow();
    const SongFile song = songs[static_cast<std::size_t>(row)];
    if (AskYesNo("Do you want to delete this song?", song.Name) == 1) {
        DeleteSong(song);
        LoadSongNames();
        SelectRow(RowAfterChange(row, static_cast<int>(songs.size())));
    }
    Hint("");
}

void SongSelFrm::RenameSelected()
{
    if (!IsSongSelected("Select a song to rename."))
        return;
    const SongFile song = songs[static_cast<std::size_t>(SelectedRow())];
    const std::string newName = SafeFileName(AskText(song.Name, "Enter the new name:"));
    if (newName.empty())
        return;
    if (FindSong(songs, newName)) {
        ShowMessage("A song with this name already exists", newName, "Rename Failed");
        return;
    }
    RenameSong(song, newName);
    LoadSongNames();
    const auto renamed =
        std::find_if(songs.begin(), songs.end(), [&](const SongFile& candidate) { return candidate.Name == newName; });
    SelectRow(renamed == songs.end() ? -1 : static_cast<int>(renamed - songs.begin()));
}

/// This does not mark the song as saved: a sound file is not a song.
void SongSelFrm::SaveAsSound(SoundFileKind kind)
{
    if (TheWindows().SaveSongAsSound(kind))
        reject();
}

void SongSelFrm::ClickHelp()
{
    ShowHelp();
}

void SongSelFrm::Try(std::string_view text, void (SongSelFrm::*command)())
{
    try {
        (this->*command)();
    } catch (const std::exception& error) {
        Hint("");
        TheServices().messages->MessageBox("", std::string(text) + "\r\n" + ErrorText(error));
        // Another program may have changed the folder: the list shows what is there now.
        const int row = SelectedRow();
        LoadSongNames();
        SelectRow(RowAfterChange(row, static_cast<int>(songs.size())));
    }
}

} // namespace sprout
