#!/usr/bin/python3
"""What scripts/lint_interface.py lets through, and what it refuses: sources planted in a folder of their own."""
import contextlib
import io
import os
import sys
import tempfile
import unittest

os.chdir(os.path.join(os.path.dirname(os.path.abspath(__file__)), "../.."))
sys.path.insert(0, "scripts")
import lint_interface  # noqa: E402

MAP = """#include <afxtoolbar.h>
class Bar : public CMFCToolBar {
protected:
    afx_msg %s OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Bar, CMFCToolBar)
ON_WM_SIZE()
END_MESSAGE_MAP()
"""


def compiled(text):
    """(failures, what the compiler said) of a source of the library with that text"""
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "planted.cpp")
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        said = io.StringIO()
        with contextlib.redirect_stdout(said):
            failures = lint_interface.main([path])
        return failures, said.getvalue()


class InterfaceCheck(unittest.TestCase):
    def refuses(self, text, because):
        failures, said = compiled(text)
        self.assertEqual(failures, 1, said)
        self.assertIn(because, said)

    def passes(self, text):
        failures, said = compiled(text)
        self.assertEqual(failures, 0, said)
        self.assertIn("1 of 1 sources reach the framework", said)

    def test_documented_members_pass(self):
        self.passes("#include <afxribbonbar.h>\nint f(CMFCRibbonBar& bar) { return bar.GetCategoryCount(); }\n")

    def test_a_name_of_the_list_passes(self):
        self.passes("#include <afxwin.h>\nHACCEL f(CFrameWnd& frame) { return frame.m_hAccelTable; }\n")

    def test_an_undocumented_member_is_refused(self):
        # A member that this framework has, and no page of the documentation.
        self.refuses("#include <afxribbonbar.h>\nvoid f(CMFCRibbonBar& bar) { bar.GetFocusedElement(); }\n", "GetFocusedElement")

    def test_a_class_without_documentation_is_refused(self):
        self.refuses("#include <afxribbonbar.h>\nsize_t f() { return sizeof(CMFCRibbonCaptionButton); }\n", "CMFCRibbonCaptionButton")

    def test_a_header_of_the_framework_alone_is_refused(self):
        self.refuses("#include <afxwin.h>\n#include <fx/node_pool.h>\n", "fx/node_pool.h")

    def test_a_header_that_the_list_has_lost_is_refused(self):
        left_over = os.path.join(lint_interface.GENERATED, "fx", "window_dc.h")
        with open(left_over, "w", encoding="utf-8") as file:
            file.write('#include "../interface.h"\n')
        self.refuses("#include <afxwin.h>\n#include <fx/window_dc.h>\n", "fx/window_dc.h")

    def test_an_override_of_what_is_not_virtual_in_the_documentation_is_refused(self):
        self.refuses("#include <afxwin.h>\nclass Window : public CWnd { HWND GetSafeHwnd() const override; };\n", "override")

    def test_a_protected_member_is_refused_from_outside(self):
        self.refuses("#include <afxwin.h>\nvoid f(CWnd& window) { window.OnPaint(); }\n", "protected")

    def test_a_handler_has_the_documented_type(self):
        self.passes(MAP % "void")
        self.refuses(MAP % "BOOL", "ON_WM_SIZE")

    def names(self, names, limit):
        said = io.StringIO()
        before, lint_interface.LIMIT = lint_interface.LIMIT, limit
        try:
            with contextlib.redirect_stdout(said):
                failures = lint_interface.check_names(names, lint_interface.sources(), False)
        finally:
            lint_interface.LIMIT = before
        return failures, said.getvalue()

    def test_the_list_is_the_one_in_the_guide_and_within_its_limit(self):
        names = lint_interface.maker().Beyond().names
        self.assertEqual(self.names(names, lint_interface.LIMIT), (0, ""))
        failures, said = self.names(names, len(names) - 1)
        self.assertEqual(failures, 1)
        self.assertIn("are allowed", said)

    def test_a_new_name_shows_in_the_guide(self):
        names = lint_interface.maker().Beyond().names
        failures, said = self.names([*names, ("CWnd::GetOwner", "x // for the test")], len(names) + 1)
        self.assertEqual(failures, 1)
        self.assertIn("the list of names is not that", said)

    def test_a_name_that_nothing_uses_goes(self):
        names = lint_interface.maker().Beyond().names
        _, said = self.names([*names, ("CWnd::NobodyUsesThis", "x // for the test")], len(names) + 1)
        self.assertIn("CWnd::NobodyUsesThis is used no more", said)


if __name__ == "__main__":
    unittest.main()
