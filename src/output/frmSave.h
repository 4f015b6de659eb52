#pragma once

#include <string>

#include "common/hover_help.h"
#include "common/session.h"
#include "controls/button.h"
#include "controls/static_label.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "output/drive_list_box.h"
#include "output/drop_down_list.h"
#include "output/folder_list_box.h"
#include "output/path_label.h"
#include "output/viewer_link.h"

namespace quillomat {

/// The dialog that saves the cheats of the game the viewer shows to a text file.
class frmSave final : public Form {
  public:
    /// `session` and `viewer` must outlive the form.
    frmSave(Application& application, Session& session, ViewerLink& viewer);

    // Created in the order of the Tab key, column by column. The path precedes the caption of the folder list, because
    // screen readers name a list after the static text right before it.
    StaticLabel Label1{*this, L"File name:", {}};
    TextBox Text1{*this, {}};
    ListBox File1{*this, {}};
    StaticLabel Label4{*this, L"List files of type:", {}};
    DropDownList Combo1{*this, {0, 0, 2000, 315}};
    PathLabel Label3{*this, {}};
    StaticLabel Label2{*this, L"Folders:", {}};
    FolderListBox Dir1{*this, {}};
    StaticLabel Label5{*this, L"Drives:", {}};
    DriveListBox Drive1{*this, {0, 0, 2000, 315}};
    Button Command1{*this, L"&OK", {}};
    Button Command2{*this, L"&Cancel", {}};
    TextBox Text2{*this, {0, 0, 1500, 270}, TextBoxKind::Help};
    /// Shown while a drive keeps the dialog waiting.
    StaticLabel Label6{*this, L"Waiting for the drive...", {}};
    Timer Timer1{*this, 1};

  private:
    void bind();
    void bind_hover_help();

    void Form_Load();
    void Form_Resize();
    void Drive1_Change();
    void Dir1_Change();
    void list_files();
    void File1_Click();
    void Command1_Click();
    void Timer1_Timer();

    void open_first_folder();
    /// Runs `work` without blocking, and meanwhile shows what the dialog waits for. Parameters and result are those of
    /// `Application::run_without_blocking`.
    bool wait_for(std::function<void()> work, DWORD milliseconds = INFINITE);
    /// Returns false if the chosen file exists and the user does not want to overwrite it, or if an earlier call is
    /// still running.
    bool may_be_written();
    /// Returns false if nothing was written because an earlier call is still running.
    bool write();

    Session& session_;
    ViewerLink& viewer_;
    HoverHelp hover_help_{session_.pointer, Text2, Timer1};
    std::wstring chosen_path_;  // the path of the file to save
    bool shown_before_ = false;
};

}  // namespace quillomat
