#pragma once

#include "suite/engine/language/ast.h"

namespace suite::ast {

/// Calls `visit` for every expression directly below this one; those inside a query are not.
template <class Visit>
void ForEachChild(const Expr& expr, const Visit& visit) {
  const auto all = [&](const std::vector<ExprPtr>& children) {
    for (const ExprPtr& child : children) visit(*child);
  };
  std::visit(Overloaded{
                 [&](const Unary& node) { visit(*node.operand); },
                 [&](const Binary& node) { visit(*node.left), visit(*node.right); },
                 [&](const Case& node) {
                   if (node.operand) visit(*node.operand);
                   for (const Case::Branch& branch : node.branches) visit(*branch.when), visit(*branch.then);
                   if (node.otherwise) visit(*node.otherwise);
                 },
                 [&](const Function& node) { all(node.arguments); },
                 [&](const DateFunction& node) { all(node.arguments); },
                 [&](const Cast& node) { visit(*node.value); },
                 [&](const Compare& node) { visit(*node.left), visit(*node.right); },
                 [&](const And& node) { all(node.terms); },
                 [&](const Or& node) { all(node.terms); },
                 [&](const Not& node) { visit(*node.term); },
                 [&](const Like& node) {
                   visit(*node.text), visit(*node.pattern);
                   if (node.escape) visit(*node.escape);
                 },
                 [&](const In& node) { visit(*node.value), all(node.candidates); },
                 [&](const InQuery& node) { visit(*node.value); },
                 [&](const Between& node) { visit(*node.value), visit(*node.low), visit(*node.high); },
                 [&](const IsNull& node) { visit(*node.value); },
                 [](const auto&) {},
             },
             expr.node);
}

}  // namespace suite::ast
