#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <random>
#include <sqlite3.h>

#include "base/vb/text.h"
#include "suite/engine/functions/server_functions.h"

namespace suite {
namespace {

std::string Identifier(std::uint64_t high, std::uint64_t low) {
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%08X-%04X-%04X-%04X-%012llX", static_cast<unsigned>(high >> 32),
                static_cast<unsigned>(high >> 16 & 0xffff), static_cast<unsigned>(high & 0xffff),
                static_cast<unsigned>(low >> 48), static_cast<unsigned long long>(low & 0xffffffffffffULL));
  return text.data();
}

std::uint64_t Random() {
  static thread_local std::mt19937_64 engine{std::random_device{}()};
  return engine();
}

void NewId(const FunctionCall& call) {
  call.Return(Identifier(Random(), Random()));
}

/// Grows with every call, over the life of a database: the machine's time in microseconds, moved on when two calls fall together.
/// The workstation's fixed clock has no part in it.
void NewSequentialId(const FunctionCall& call) {
  static std::atomic<std::uint64_t> last{0};
  static const std::uint64_t process = Random();
  const auto time = std::chrono::system_clock::now().time_since_epoch();
  const auto now = static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::microseconds>(time).count());
  std::uint64_t previous = last.load();
  std::uint64_t next = 0;
  do {
    next = std::max(now, previous + 1);
  } while (!last.compare_exchange_weak(previous, next));
  call.Return(Identifier(next, process));
}

void ObjectId(const FunctionCall& call) {
  std::string name(vb::Trim(call.Text(0)));
  if (vb::EqualNoCase(vb::Left(name, 4), "dbo.")) name.erase(0, 4);
  if (name.size() > 1 && name.front() == '[' && name.back() == ']') name = name.substr(1, name.size() - 2);
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(call.Functions().store, "SELECT id FROM sysobjects WHERE name = ?1", -1, &statement, nullptr);
  sqlite3_bind_text(statement, 1, name.c_str(), -1, SQLITE_STATIC);
  if (sqlite3_step(statement) == SQLITE_ROW) {
    call.Return(std::int64_t{sqlite3_column_int64(statement, 0)});
  } else {
    call.ReturnNull();
  }
  sqlite3_finalize(statement);
}

}  // namespace

std::vector<detail::FunctionEntry> detail::SystemFunctions() {
  return {{"srv_newid", 0, NewId, false}, {"srv_newsequentialid", 0, NewSequentialId, false}, {"srv_object_id", 1, ObjectId}};
}

}  // namespace suite
