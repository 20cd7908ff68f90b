#pragma once

#include <gtest/gtest.h>
#include <string>

#include "tests/windows/products/person/hands.h"
#include "tests/windows/products/person/shop_folder.h"

namespace person {

/// The host's command line on the folder's shop.
inline std::string Host(const ShopFolder& folder, const std::string& switches) {
  return std::string("\"") + HOST_PROGRAM + "\" --database \"" + folder.Database() + "\" " + switches;
}

/// The switches that log the sample shop's first user on at its process date.
inline constexpr const char* kLoggedOn = "--unattended --company 1 --shop 1 --user 1 --date 15/03/2024";

/// The editor of a new request. `stockOut`: what is said to the proposal of the items that have run out.
inline FormOnScreen NewRequest(Person& person, FormOnScreen& requests, const std::string& stockOut = "No") {
  requests.Click("New");
  EXPECT_EQ(person.Answers(stockOut), "Do you want to add stock out items?");
  return person.Meets("Goods Request");
}

}  // namespace person
