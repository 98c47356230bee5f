#include <afxcontrolbars.h>

#include "lamp_reactor.h"
#include "main_frame.h"
#include "menu_event.h"

#include "varnhold/language.h"
#include "varnhold/message_box.h"

#include <boost/make_shared.hpp>

/// The application object. The linked entry (target framework_main) has WinMain, which finds it and calls InitInstance.
class CHostApp : public CWinAppEx {
public:
    BOOL InitInstance() override {
        CWinAppEx::InitInstance();

        // cfg, lang and pic lie beside the program. When they are elsewhere, say so before anything else: the library
        // asks once for some of the paths.
        //     FileOp::SetAppPath(L"C:\\ProgramData\\Lamps\\");

        // The language is an argument of this program. Names and tooltips are translated while the ribbon is loaded,
        // so the tables come first.
        const CString language = m_lpCmdLine;
        if (language.IsEmpty() || !CMultiLanguageMgr::SetLanguage(language.GetString())) {
            CMultiLanguageMgr::SetLanguage(L"en");
        }
        setMessageBoxTitle(CMultiLanguageMgr::translationW("Title", -1, "Lamps"));

        // Asked in this order. They may be added at any time before the first click.
        const auto board = std::make_shared<LampBoard>();
        CMenuEvtHandleMgr::Ins()->addReactor(boost::make_shared<CLampReactor>(board));
        CMenuEvtHandleMgr::Ins()->addReactor(boost::make_shared<CLanguageReactor>());

        auto* const frame = new CMainFrame(board); // deletes itself with its window
        m_pMainWnd = frame;
        if (!frame->CreateFrame()) {
            return FALSE;
        }
        frame->ShowWindow(m_nCmdShow);
        frame->UpdateWindow();
        return TRUE; // FALSE would end the program here
    }
};

static CHostApp s_app;
