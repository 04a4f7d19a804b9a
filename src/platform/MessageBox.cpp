#include "platform/MessageBox.h"

#include "platform/MessageBoxDialog.h"
#include "platform/TWindow.h"

int MessageBoxA(HWND owner, const char* text, const char* caption, UINT type)
{
    MessageBoxDialog box(GetWindowPtr(owner), text ? text : "", caption ? caption : "", type);
    int answer = box.Execute();
    return answer < 0 ? 0 : answer;
}
