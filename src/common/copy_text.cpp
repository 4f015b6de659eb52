#include "common/copy_text.h"

#include "forms/application.h"
#include "forms/form.h"
#include "text/error.h"
#include "win/clipboard.h"

namespace quillomat {

void CopyText(Form& form, std::wstring_view text) {
    try {
        put_on_clipboard(form.window(), text);
        return;
    } catch (const Error& error) {
        if (error.code() != ErrorCode::ClipboardError) throw;
    }
    const Hourglass hourglass(form);
    form.application().run_without_blocking(wait_for_clipboard);
    put_on_clipboard(form.window(), text);
}

}  // namespace quillomat
