// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/FormSheet.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <string>
#include <vector>

#include "pictures/SheetPicture.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/MessageForms.h"
#include "ui/forms/WorkFrm.h"
#include "ui/look/Palette.h"
#include "ui/widgets/ProcessPic.h"

namespace sprout {

namespace {

/// Lays pictures in rows on one sheet.
class FormSheet {
public:
    /// Shows the widget first to give it its focus.
    void Add(QWidget& widget)
    {
        widget.show();
        QApplication::processEvents();
        pictures.push_back(PictureOf(widget, QStringLiteral("forms")));
    }

    void SaveTo(const QString& folder)
    {
        QLabel sheet;
        sheet.resize(kSheetWidth, Lay(nullptr));
        QPixmap paper(sheet.size() * pictures.front().devicePixelRatio());
        paper.setDevicePixelRatio(pictures.front().devicePixelRatio());
        paper.fill(kStone);
        QPainter painter(&paper);
        Lay(&painter);
        painter.end();
        sheet.setPixmap(paper);
        SaveSheet(sheet, folder, QStringLiteral("forms"));
    }

private:
    static constexpr int kSheetWidth = 1000;
    static constexpr int kGap = 12;

    /// Draws the pictures, if there is a painter, and returns the height of all rows.
    int Lay(QPainter* painter) const
    {
        int x = kGap;
        int y = kGap;
        int rowHeight = 0;
        for (const QPixmap& picture : pictures) {
            const QSize size = picture.deviceIndependentSize().toSize();
            if (x + size.width() > kSheetWidth) {
                x = kGap;
                y += rowHeight + kGap;
                rowHeight = 0;
            }
            if (painter)
                painter->drawPixmap(x, y, picture);
            x += size.width() + kGap;
            rowHeight = std::max(rowHeight, size.height());
        }
        return y + rowHeight + kGap;
    }

    std::vector<QPixmap> pictures;
};

void DrawMessages(FormSheet& sheet)
{
    const auto draw = [&sheet](BandedForm& form, const Words& caption) {
        form.SetCaption(caption);
        sheet.Add(form);
    };
    Msg1BtnFrm one(nullptr, Words::Text("Please enter a song name."));
    draw(one, CaptionOf({}));
    Msg1Btn2NoteFrm two(nullptr, Words::Text("Please paint on the track."),
                        Words::Text("Use the paint button and draw on the track."));
    draw(two, CaptionOf({}));
    MsgYesNoFrm question(nullptr, Words::Text("Are you sure to delete this Track?"), Words::Text("Track No: %1", 3));
    draw(question, Words::Text(" Confirm Delete Track"));
    Msg3BtnFrm three(nullptr, Words::Text("Choose Audio Type to add:"));
    draw(three, Words::Text(" Add Audio Track"));
    SaveConfirmFrm save(nullptr, "Rain on the roof");
    draw(save, CaptionOf({}));
    PlainBoxFrm plain(nullptr,
                      Words::AsIs("Could not Play Sound\nDriver busy or not ready\nCheck whether sound driver is ON"),
                      MessageIcon::Exclamation);
    draw(plain, CaptionOf(Words::Text("Play Failed")));
    const Words words = Words::AsIs("This is a very long line of a message that does not fit on the screen of a small "
                                    "computer and therefore has to go on in another line, word by word. ");
    Msg1BtnFrm wide(nullptr, Words::Joined({words, words}, ""));
    draw(wide,
         Words::AsIs(
             " A title that is much longer than the form is wide has to end somewhere, or else it would stick out of "
             "the form, far behind the close box"));
}

void DrawInputs(FormSheet& sheet)
{
    InputBoxFrm input(nullptr, "Zumi", Words::Text("Enter the new name:"), {});
    input.SetCaption(Words::AsIs(" Rename"));
    sheet.Add(input);
    InputBoxFrm longInput(nullptr, "Zumi", Words::Text("Enter the new name:"),
                          Words::AsIs("It may hold letters and numbers."));
    longInput.SetCaption(Words::AsIs(" Rename"));
    sheet.Add(longInput);
    SongTitleFrm title(nullptr, "Zumi", "Your name here");
    title.SetCaption(Words::Text(" Change Song Title"));
    sheet.Add(title);
}

} // namespace

void DrawFormSheet(const QString& folder)
{
    FormSheet sheet;
    DrawMessages(sheet);
    DrawInputs(sheet);
    QWidget window;
    window.resize(240, 180);
    ProcessPic sign(&window);
    sign.Appear();
    window.show();
    sign.ShowProgress(12, 20);
    sheet.Add(window);
    WorkFrm work(nullptr, Words::Text("Writing the wav file"));
    work.ShowShare(3, 5);
    sheet.Add(work);
    sheet.SaveTo(folder);
}

} // namespace sprout
