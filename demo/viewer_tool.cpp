#include "viewer_tool.h"

#include "tool_arguments.h"

#include <fx/scoped_change.h>

#include <utility>

IMPLEMENT_DYNCREATE(CViewerTool, CUserTool)

static CViewerTool::Values s_values;

void CViewerTool::SetValues(Values values) { s_values = std::move(values); }

BOOL CViewerTool::Invoke() {
    const fx::ScopedChange<CString> filled(m_strArguments, FillArguments(m_strArguments.GetString(), s_values).c_str());
    return CUserTool::Invoke();
}
