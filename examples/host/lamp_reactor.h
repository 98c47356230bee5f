#pragma once

#include "lamp_board.h"
#include "menu_event.h"

#include <memory>

/// Serves the commands that the ribbon's file calls CMD="lamp". The dispatcher keeps a reactor until the process ends,
/// longer than any window lives: so it shares the board and knows no window.
class CLampReactor : public CMenuReactor {
public:
    explicit CLampReactor(std::shared_ptr<LampBoard> board);

protected:
    bool MenuClick(unsigned int id) const override;
    bool Update(CCmdUI* commandUi) const override;

private:
    std::shared_ptr<LampBoard> m_board;
};

/// Serves CMD="language": PARAM is the folder of the tables, below lang.
class CLanguageReactor : public CMenuReactor {
protected:
    bool MenuClick(unsigned int id) const override;
    bool Update(CCmdUI* commandUi) const override;
};
