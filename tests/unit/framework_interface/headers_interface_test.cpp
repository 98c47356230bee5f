// What programs expect of the headers themselves: the names by which they ask for them, and the constants.
#include <gtest/gtest.h>

// Alone, as many programs include it: the exchange of dialogs' data comes with it.
#include <afxwin.h>

namespace {

using TextExchange = void(AFXAPI*)(CDataExchange*, int, CString&);
const TextExchange kTextExchange = &DDX_Text;

} // namespace

#ifndef __AFX_H__
#error "afx.h says by __AFX_H__ that it was included"
#endif
#ifndef __AFXWIN_H__
#error "afxwin.h says by __AFXWIN_H__ that it was included"
#endif
#ifndef __AFXDD_H__
#error "afxwin.h includes afxdd_.h"
#endif

#include <afxadv.h>
#include <afxcmn.h>
#include <afxcoll.h>
#include <afxdisp.h>
#include <afxext.h>
#include <afxpriv.h>
#include <afxres.h>
#include <afxtempl.h>

#if !defined(__AFXADV_H__) || !defined(__AFXCMN_H__) || !defined(__AFXCOLL_H__) || !defined(__AFXDISP_H__) ||          \
    !defined(__AFXEXT_H__) || !defined(__AFXPRIV_H__) || !defined(__AFXTEMPL_H__) || !defined(__AFXRES_H__)
#error "a header does not say that it was included"
#endif

namespace {

TEST(Headers, DialogDataExchangeComesWithTheWindows) { EXPECT_NE(kTextExchange, nullptr); }

TEST(Headers, CoordinatesOfAMessageHaveASign) {
    EXPECT_EQ(AFX_GET_X_LPARAM(MAKELPARAM(0xFFFE, 3)), -2);
    EXPECT_EQ(AFX_GET_Y_LPARAM(MAKELPARAM(3, 0x8000)), -32768);
    EXPECT_EQ(AFX_GET_Y_LPARAM(MAKELPARAM(3, 7)), 7);
}

TEST(Headers, RecentFilesHaveSixteenCommandsInARow) {
    static constexpr UINT kFiles[] = {
        ID_FILE_MRU_FILE1,  ID_FILE_MRU_FILE2,  ID_FILE_MRU_FILE3,  ID_FILE_MRU_FILE4,
        ID_FILE_MRU_FILE5,  ID_FILE_MRU_FILE6,  ID_FILE_MRU_FILE7,  ID_FILE_MRU_FILE8,
        ID_FILE_MRU_FILE9,  ID_FILE_MRU_FILE10, ID_FILE_MRU_FILE11, ID_FILE_MRU_FILE12,
        ID_FILE_MRU_FILE13, ID_FILE_MRU_FILE14, ID_FILE_MRU_FILE15, ID_FILE_MRU_FILE16,
    };
    UINT expected = ID_FILE_MRU_FIRST;
    for (const UINT file : kFiles) {
        EXPECT_EQ(file, expected++);
    }
    EXPECT_EQ(kFiles[15], static_cast<UINT>(ID_FILE_MRU_LAST));
}

TEST(Headers, TextsOfSystemCommandsFollowTheCommands) {
    const struct {
        UINT text;
        UINT command;
    } texts[] = {
        {AFX_IDS_SCSIZE, SC_SIZE},
        {AFX_IDS_SCMOVE, SC_MOVE},
        {AFX_IDS_SCMINIMIZE, SC_MINIMIZE},
        {AFX_IDS_SCMAXIMIZE, SC_MAXIMIZE},
        {AFX_IDS_SCNEXTWINDOW, SC_NEXTWINDOW},
        {AFX_IDS_SCPREVWINDOW, SC_PREVWINDOW},
        {AFX_IDS_SCCLOSE, SC_CLOSE},
        {AFX_IDS_SCRESTORE, SC_RESTORE},
        {AFX_IDS_SCTASKLIST, SC_TASKLIST},
    };
    for (const auto& row : texts) {
        EXPECT_EQ(row.text, AFX_IDS_SCFIRST + (row.command - SC_SIZE) / 16);
    }
}

TEST(Headers, LabelsOfDialogsHaveTheIdOfNone) { EXPECT_EQ(IDC_STATIC, -1); }

TEST(Headers, OleIsReadiedOnceAndNoControlsAreContained) {
    EXPECT_TRUE(AfxOleInit());
    EXPECT_TRUE(AfxOleInit());
    AfxEnableControlContainer();
    AfxWinTerm();
    EXPECT_TRUE(AfxOleInit()) << "after the program's end a new one may begin";
    AfxWinTerm();
}

} // namespace
