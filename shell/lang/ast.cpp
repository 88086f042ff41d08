// Freeing syntax trees without recursing along operator chains.
#include "shell/lang/ast.hpp"

namespace orrery::shell::lang {

Expr::~Expr() {
    // Operands are detached before each node is freed, so no node's destructor
    // reaches past its own suffixes and rows, whose depth the parser bounds.
    std::vector<ExprPtr> pending = std::move(operands);
    while (!pending.empty()) {
        const ExprPtr next = std::move(pending.back());
        pending.pop_back();
        if (!next) continue;  // an operand the parser moved elsewhere
        for (auto& operand : next->operands) pending.push_back(std::move(operand));
    }
}

}  // namespace orrery::shell::lang
