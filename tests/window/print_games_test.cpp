// The window that prints the list of games, on printers whose pages are read back.

#include "metafile_printer.h"
#include "output/frmPrintGames.h"
#include "shown_viewer.h"
// Needs what they include.
#include <winspool.h>

namespace quillomat {
namespace {

struct PrintGamesTest : ShownViewerTest {
    void open(int games) {
        std::string database;
        for (int number = 1; number <= games; ++number) {
            database += "$$$$$$$$$$$$$$$$$$$$ Game " + std::to_string(number) + "\r\n";
        }
        if (!viewer) open_viewer(database);
        session.open_printer = [this] { return std::make_unique<MetafilePrinter>(printed); };
        open_in(form, session, *link);
    }
    // Wine: prints on a PostScript printer whose port is a file, which needs no print server. Returns false where
    // there is no such driver.
    bool prints_to(const std::filesystem::path& port, const std::wstring& message = {}) {
        wchar_t drivers[MAX_PATH];
        DWORD needed = 0;
        GetPrinterDriverDirectoryW(nullptr, nullptr, 1, reinterpret_cast<BYTE*>(drivers), sizeof drivers, &needed);
        const std::filesystem::path description = std::filesystem::path(drivers) / "3" / "quillomat.ppd";
        std::filesystem::create_directories(description.parent_path());
        write_bytes(description,
                    "*PPD-Adobe: \"4.3\"\n*DefaultPageSize: A4\n"
                    "*PageSize A4: \"<</PageSize [595 842]>> setpagedevice\"\n"
                    "*ImageableArea A4: \"18 18 577 824\"\n*PaperDimension A4: \"595 842\"\n");
        std::wstring name = L"Test printer", system = L"Windows x64", library = L"wineps.drv", data = L"quillomat.ppd",
                     processor = L"WinPrint", type = L"RAW", port_name = port.wstring();
        DRIVER_INFO_2W driver{3, name.data(), system.data(), library.data(), data.data(), library.data()};
        AddPrinterDriverW(nullptr, 2, reinterpret_cast<BYTE*>(&driver));
        PRINTER_INFO_2W printer{};
        printer.pPrinterName = printer.pDriverName = name.data();
        printer.pPortName = port_name.data();
        printer.pPrintProcessor = processor.data();
        printer.pDatatype = type.data();
        const HANDLE added = AddPrinterW(nullptr, 2, reinterpret_cast<BYTE*>(&printer));
        if (!added) return false;
        SetDefaultPrinterW(name.c_str());
        if (!message.empty()) expect_message(L"Quillomat", message);
        press(form->Command1);
        DeletePrinter(added);
        return ClosePrinter(added);
    }

    Printed printed;
    std::unique_ptr<frmPrintGames> form;
};

TEST_F(PrintGamesTest, ARangeIsTypedCheckedPrintedAndRemembered) {
    open(20);
    EXPECT_EQ(form->Text1.text() + L" to " + form->Text2.text(), L"1 to 21")
        << "one too many, so that the user chooses";
    press_key(VK_DOWN);
    ASSERT_SOON(form->Option2.value());
    for (const WORD key : std::initializer_list<WORD>{VK_TAB, '1', 'X', '8', VK_OEM_MINUS, VK_BACK, '2'})
        press_key(key);
    EXPECT_SOON(form->Text1.text() == L"12") << "digits and Backspace only";
    for (const auto& [first, last] : {std::pair{L"0", L"3"},
                                      {L"5 pasted", L"4"},
                                      {L"1", L""},
                                      {L"1", L"21"},
                                      {L"1", L"99999999999999999999999999"}}) {
        form->Text1.set_text(first);
        form->Text2.set_text(last);
        expect_message(L"Error!", L"Please give a proper number ( 1 -20).");
        form->Command1.click();
    }
    form->Text1.set_text(L" 012 pasted");
    form->Text1.set_focus();
    for (const WORD key : std::initializer_list<WORD>{VK_RETURN, '1', '3'}) press_key(key);
    EXPECT_SOON(form->Text2.text() == L"13" && form->Text3.text() == L"2");
    for (int times = 0; times < 2; ++times) press_key(VK_RETURN);
    ASSERT_SOON(!form) << "by way of the button";
    const std::wstring last_line = L"Made with Quillomat - www.tobferrand.example";
    EXPECT_EQ(
        printed.pages,
        (decltype(printed.pages){{L"List of Games", L"---", L"---", L"", L"Game 12", L"Game 13", L"", last_line}}));

    open(20);
    EXPECT_EQ(form->Text1.text() + form->Text2.text(), L" 012 pasted13");
}

TEST_F(PrintGamesTest, TheListGoesThroughThePrintingSystemOrTheUserIsToldWhyNot) {
    open(200);
    press(form->Command1);
    std::wstring expected = L"List of Games|---|---||";
    for (int number = 1; number <= 200; ++number) expected += L"Game " + std::to_wstring(number) + L"|";
    std::wstring lines;
    for (const auto& page : printed.pages) {
        for (const std::wstring& line : page) lines += line + L"|";
    }
    EXPECT_EQ(lines, expected + L"||Made with Quillomat - www.tobferrand.example|");
    printed.fails_at_page = printed.pages.size() + 2;
    open(200);
    expect_message(L"Quillomat", L"Printer error");
    press(form->Command1);
    EXPECT_TRUE(printed.documents_aborted == 1 && printed.documents_ended == 1) << "half a list is not printed";
    session.open_printer = open_default_printer;
    expect_message(L"Quillomat",
                   L"No printer is set up. Install or choose a printer in the Windows settings and try again.");
    press(form->Command1);
    if (!prints_to(folder.path() / "no such folder" / "out.ps",
                   L"The document was not printed, or not all of it, because the printer \"Test printer\" could not "
                   L"be reached. Check that it is switched on and connected, and try again.")) {
        GTEST_SKIP() << "only Wine has the driver";
    }
    ASSERT_TRUE(form && !form->closed()) << "the user can try again";
    prints_to(folder.path() / "out.ps");
    ASSERT_SOON(!form);
    EXPECT_NE(bytes("out.ps").find("%%Pages: 3"), std::string::npos);
}

}  // namespace
}  // namespace quillomat
