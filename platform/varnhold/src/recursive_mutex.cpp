#include "varnhold/recursive_mutex.h"

xrecursive_mutex::xrecursive_mutex(const char* prompt) : m_prompt(prompt ? prompt : "") {}

void xrecursive_mutex::setPrompt(const char* prompt) { m_prompt = prompt ? prompt : ""; }
