// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/SongSelFrm.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "core/Paths.h"
#include "core/Settings.h"
#include "song_window/NameDecision.h"
#include "song_window/SongFileCommands.h"
#include "song_window/SongList.h"
#include "ui/Windows.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/MessageForms.h"
#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"
#include "ui/widgets/PutAt.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr LaterWords kSavWavHint = Words::Later("Select wav file name to save the song as audio (.wav) file");
constexpr LaterWords kSavWmaHint = Words::Later("Select wma file name to save the song as audio (.wma) file");

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

void Hint(const Words& text)
{
    ShowHint(text);
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
    SetText(*SongNmLbl, Words::Text("Song name"));
}

void SongSelFrm::MakeList()
{
    SngNmLst = new SongList(this);
    SngNmLst->setObjectName(QStringLiteral("SngNmLst"));
    SetSpokenName(*SngNmLst, Words::Text("Songs"));
    connect(SngNmLst, &QListWidget::itemSelectionChanged, this, [this] { TakeSelectedName(); });
    connect(SngNmLst, &QListWidget::itemClicked, this, [this] { TakeSelectedName(); });
    connect(SngNmLst, &QListWidget::itemDoubleClicked, this, [this] { OkBtn->click(); });
}

void SongSelFrm::MakeNameBox()
{
    SongNameTxt = new QLineEdit(this);
    SongNameTxt->setObjectName(QStringLiteral("SongNameTxt"));
    SetSpokenNameOf(*SongNameTxt, *SongNmLbl);
    SongNameTxt->setMaxLength(0x7FFFFFFF); // the file system limits names, the box does not
    SongNameTxt->installEventFilter(this);
    ForbidCharacters(*SongNameTxt, QStringLiteral("./\\:*?\"<>"));
    Watcher().Watch(*SongNameTxt, Words::Text("Type your song name here"));
}

void SongSelFrm::MakeButtons()
{
    OkBtn = &AddWordButton({"OkBtn", Words::Later("OK"), LaterWords(), Plate::Word, kDeepLeaf}, [this] { ClickOk(); });
    CancelBtn =
        &AddWordButton({"CancelBtn", Words::Later("Cancel"), LaterWords(), Plate::Word, kStone}, [this] { reject(); });
    columnButtons = {
        &AddWordButton({"CopyBtn", Words::Later("Copy"),
                        Words::Later("Copy button, select a song and use this button to copy it to make one more"),
                        Plate::Word, kLink, "WordCopy"},
                       [this] { ChangeSongs(CopySelectedSong); }),
        &AddWordButton({"DeleteBtn", Words::Later("Delete"),
                        Words::Later("Delete button, select a song and use this button to delete it"), Plate::Word,
                        kCoral, "WordDelete"},
                       [this] { ChangeSongs(DeleteSelectedSong); }),
        &AddWordButton({"RenameBtn", Words::Later("Rename"),
                        Words::Later("Rename button, select a song and use this button to change it's name"),
                        Plate::Word, kLink, "WordRename"},
                       [this] { ChangeSongs(RenameSelectedSong); }),
        &AddWordButton({"HelpBtn", Words::Later("Help"), LaterWords(), Plate::Word, kBerry, "WordHelp"},
                       [this] { ClickHelp(); })};
    soundFileButtons = {
        &AddWordButton({"SavWavBtn", Words::Later("Wav file"), kSavWavHint, Plate::Word, kLink, "WordWave"},
                       [this] { SaveAsSound(SoundFileKind::Wav); }),
        &AddWordButton({"SavWmaBtn", Words::Later("Wma file"), kSavWmaHint, Plate::Word, kLink, "WordWma"},
                       [this] { SaveAsSound(SoundFileKind::Wma); })};
}

void SongSelFrm::InitilizeThisWindow(SongSelMode newMode)
{
    mode = newMode;
    const SongSelLayout& layout = LayoutOf(mode);
    SetCaption(layout.Caption);
    ModePic->setPixmap(
        Artwork(QString::fromLatin1(PictureOf(mode)), QSize(kModePicSide, kModePicSide), devicePixelRatioF()));
    SetText(*TextTitleLbl, layout.TextTitle);
    OkBtn->SetHint(layout.OkHint);
    SetSpokenDescription(*SngNmLst, layout.ListHint);
    Watcher().Watch(*SngNmLst->viewport(), layout.ListHint);
    for (QWidget* widget : std::initializer_list<QWidget*>{TextTitleLbl, SongNmLbl, SongNameTxt})
        widget->setVisible(layout.HasNameBox);
    const bool mayExport = layout.HasSoundFiles && !IsSetToOne("HideExport");
    for (QWidget* button : soundFileButtons)
        button->setVisible(mayExport);
    keepsSuppliedSongs = IsSetToOne("HideDeleteSupplied");
    PlaceControls();
    SngNmLst->SetNothingFound(layout.NothingFound);
    SngNmLst->LoadSongNames();
    ShowDeleteBtn();
    (layout.HasNameBox ? static_cast<QWidget*>(SongNameTxt) : SngNmLst)->setFocus();
}

void SongSelFrm::SetSongName(std::string_view name)
{
    SetContent(*SongNameTxt, name);
    SongNameTxt->selectAll();
}

SongWindowNeeds SongSelFrm::Needs() const
{
    SongWindowNeeds needs;
    needs.bandHeight = kBandHeight;
    needs.blankWidth = TextTitleLbl->fontMetrics().horizontalAdvance(QChar(u' '));
    needs.nameLabelWidth = SongNmLbl->sizeHint().width();
    for (std::size_t i = 0; i < columnButtons.size(); ++i)
        needs.columnButtons[i] = {columnButtons[i]->sizeHint().width(), columnButtons[i]->height()};
    for (std::size_t i = 0; i < soundFileButtons.size(); ++i)
        needs.soundFileButtons[i] = SizeOf(*soundFileButtons[i]);
    needs.okBtn = SizeOf(*OkBtn);
    needs.cancelBtn = SizeOf(*CancelBtn);
    return needs;
}

void SongSelFrm::PlaceControls()
{
    const SongSelLayout& layout = LayoutOf(mode);
    const SongWindowPlan plan = PlanSongWindow(layout, Needs());
    resize(plan.width, plan.height);
    PutAt(*ModePic, plan.modePic);
    PutAt(*ListTitleLbl, plan.listTitleLbl);
    SetFittingText(*ListTitleLbl, layout.ListTitle);
    PutAt(*SngNmLst, plan.list);
    if (layout.HasNameBox) {
        PutAt(*TextTitleLbl, plan.textTitleLbl);
        PutAt(*SongNmLbl, plan.songNmLbl);
        PutAt(*SongNameTxt, plan.songNameTxt);
    }
    for (std::size_t i = 0; i < columnButtons.size(); ++i)
        PutAt(*columnButtons[i], plan.columnButtons[i]);
    for (std::size_t i = 0; i < soundFileButtons.size(); ++i)
        PutAt(*soundFileButtons[i], plan.soundFileButtons[i]);
    PutAt(*OkBtn, plan.okBtn);
    PutAt(*CancelBtn, plan.cancelBtn);
}

void SongSelFrm::TakeSelectedName()
{
    if (const SongFile* const song = SngNmLst->SelectedSong())
        SetContent(*SongNameTxt, song->Name);
    ShowDeleteBtn();
}

void SongSelFrm::ChangeSongs(void (*command)(SongList&))
{
    command(*SngNmLst);
    ShowDeleteBtn(); // the list is quiet about a line that it selects itself
}

void SongSelFrm::ShowDeleteBtn()
{
    constexpr std::size_t deleteBtn = 1;
    const SongFile* const song = SngNmLst->SelectedSong();
    const bool stays = song && (IsOfClass(song->Path) || (keepsSuppliedSongs && IsSuppliedSong(song->Name)));
    columnButtons[deleteBtn]->setVisible(!stays);
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
    Hint({});
    BandedForm::reject();
}

void SongSelFrm::ClickOk()
{
    Hint({});
    if (mode == SongSelMode::Open)
        OpenSelected();
    else
        AcceptTypedName();
}

void SongSelFrm::OpenSelected()
{
    if (IsSongSelected(*SngNmLst, Words::Text("Song not selected.")))
        Accept(SngNmLst->SelectedSong()->Name);
}

void SongSelFrm::AcceptTypedName()
{
    const std::string name = SongNameTxt->text().toStdString();
    const bool saving = mode == SongSelMode::Save;
    switch (DecideName(mode, name, SngNmLst->Songs())) {
    case NameDecision::AskForName:
        if (saving)
            Hint(Words::Text("Type a name in song name text box"));
        ShowMessage(Words::Text("Please enter a song name."));
        if (saving)
            Hint({});
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
        Hint(Words::Text("Recommended to click 'No' and then save with another name"));
    const bool yes = AskYesNo(Words::Text("A song with this name already exists: %1", name),
                              Words::Text("Do you wish to overwrite?")) == 1;
    Hint({});
    return yes;
}

void SongSelFrm::Accept(std::string_view name)
{
    ChosenName = name;
    Ok = true;
    Answer(1);
}

/// This does not mark the song as saved: a sound file is not a song.
void SongSelFrm::SaveAsSound(SoundFileKind kind)
{
    if (TheWindows().SaveSongAsSound(kind))
        reject();
}

void SongSelFrm::ClickHelp()
{
    TheWindows().ShowHelp();
}

} // namespace sprout
