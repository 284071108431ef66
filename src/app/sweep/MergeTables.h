// keldor-sweep merge OUT TABLE...: joins the tables of a sharded sweep into
// one, in run order. Every table must belong to one experiment (their
// TABLE.experiment records agree), every row must check, and every run of
// the experiment must appear exactly once; else nothing is written and the
// missing or repeated runs are named (status 2).
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace keldor::sweep {

// `arguments` are those after "merge": OUT, then the tables.
int MergeTables(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace keldor::sweep
