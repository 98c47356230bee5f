#pragma once

// What every framework header needs: Windows itself and the decorations that the documented declarations carry.

#include <tchar.h>
#include <windows.h>

#include "framework_api.h"

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define AFXAPI_DATA
#define AFX_DATA
#define AFX_INLINE inline
#define AFX_NOVTABLE
#define AFX_COMDAT
#define afx_msg

// A class that an extension DLL of the host exports: the DLL itself is compiled with _AFXEXT.
#define AFX_CLASS_EXPORT __declspec(dllexport)
#define AFX_CLASS_IMPORT __declspec(dllimport)
#define AFX_DATA_EXPORT __declspec(dllexport)
#define AFX_DATA_IMPORT __declspec(dllimport)
#define AFX_API_EXPORT __declspec(dllexport)
#define AFX_API_IMPORT __declspec(dllimport)
#ifdef _AFXEXT
#define AFX_EXT_CLASS AFX_CLASS_EXPORT
#define AFX_EXT_API AFX_API_EXPORT
#define AFX_EXT_DATA AFX_DATA_EXPORT
#else
#define AFX_EXT_CLASS AFX_CLASS_IMPORT
#define AFX_EXT_API AFX_API_IMPORT
#define AFX_EXT_DATA AFX_DATA_IMPORT
#endif

// Checks run in every build that is not compiled with NDEBUG.
#if defined(_DEBUG) || !defined(NDEBUG)
#define FX_CHECKED_BUILD 1
#else
#define FX_CHECKED_BUILD 0
#endif

struct __POSITION;
/// Opaque place in a list or map; null is the end.
typedef __POSITION* POSITION;

class CObject;
class CArchive;
class CDumpContext;
class CException;
class CFile;
struct CRuntimeClass;
