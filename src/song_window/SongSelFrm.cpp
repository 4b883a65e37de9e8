// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/SongSelFrm.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "song_window/NameDecision.h"
#include "song_window/SongFileCommands.h"
#include "song_window/SongList.h"
#include "ui/Artwork.h"
#include "ui/Dialogs.h"
#include "ui/HelpFrm.h"
#include "ui/MessageForms.h"
#include "ui/Palette.h"
#include "ui/PutAt.h"
#include "ui/QtText.h"
#include "ui/Windows.h"

namespace sprout {

namespace {

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
                       [this] { CopySelectedSong(*SngNmLst); }),
        &AddWordButton({"DeleteBtn", "Delete", "Delete button, select a song and use this button to delete it",
                        Plate::Word, kCoral, "WordDelete"},
                       [this] { DeleteSelectedSong(*SngNmLst); }),
        &AddWordButton({"RenameBtn", "Rename", "Rename button, select a song and use this button to change it's name",
                        Plate::Word, kLink, "WordRename"},
                       [this] { RenameSelectedSong(*SngNmLst); }),
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
    Watcher().Watch(*SngNmLst->viewport(), layout.ListHint.English());
    for (QWidget* widget : std::initializer_list<QWidget*>{TextTitleLbl, SongNmLbl, SongNameTxt})
        widget->setVisible(layout.HasNameBox);
    for (QWidget* button : soundFileButtons)
        button->setVisible(layout.HasSoundFiles);
    PlaceControls();
    SngNmLst->SetNothingFound(layout.NothingFound.English());
    SngNmLst->LoadSongNames();
    (layout.HasNameBox ? static_cast<QWidget*>(SongNameTxt) : SngNmLst)->setFocus();
}

void SongSelFrm::SetSongName(std::string_view name)
{
    SongNameTxt->setText(QtText(name));
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
        SongNameTxt->setText(QtText(song->Name));
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
            Hint("Type a name in song name text box");
        ShowMessage(Words::Text("Please enter a song name."));
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
    const bool yes = AskYesNo(Words::Text("A song with this name already exists: %1", name),
                              Words::Text("Do you wish to overwrite?")) == 1;
    Hint("");
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
    ShowHelp();
}

} // namespace sprout
