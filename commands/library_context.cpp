#include "library_context.h"

#include "commands/resource_paths.h"
#include "menu_id_mgr.h"

#include <afxglobals.h>
#include <varnhold/file_op.h>
#include <varnhold/key.h>

std::vector<CBitmap*> g_layCtrlBmp;

CQkMfc::CQkMfc() = default;

CQkMfc::~CQkMfc() = default;

void CQkMfc::Init() {}

CQkMfc* CQkMfc::Ins() {
    static CQkMfc instance;
    return &instance;
}
