#pragma once

#include "afxpopupmenubar.h"
#include "fx/popup_rows.h"
#include "popups/row_geometry.h"
#include "popups/type_ahead.h"

/// What a bar that is a list needs beside its rows.
struct CMFCPopupMenuBar::Rows {
    toolbar::PopupRows* source = nullptr;
    CMFCToolBarMenuButton button; ///< stands for the row that is being drawn
    toolbar::TypeAhead typed;
    int width = -1;                                ///< measured; -1: not yet
    int firstAdded = -1;                           ///< from here on the rows wait for their layout; -1: none
    static constexpr UINT_PTR addedTimer = 0xF113; ///< posted as a timer's message
};
