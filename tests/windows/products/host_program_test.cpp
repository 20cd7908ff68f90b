// The host program as somebody starts it from a command line.
#include <gtest/gtest.h>

#include "tests/windows/products/person/hands.h"
#include "tests/windows/products/person/shop_folder.h"

namespace person {
namespace {

std::string Host(const std::string& switches) {
  return std::string("\"") + HOST_PROGRAM + "\" " + switches;
}

std::string InShop(const ShopFolder& folder) {
  return "--database \"" + folder.Database() + "\" ";
}

TEST(HostProgram, WhoAsksForItsSwitchesReadsThem) {
  for (const char* question : {"--help", "-?", "/?"}) {
    Program host(Host(question));
    EXPECT_EQ(host.ExitCode(), 0u) << question;
    for (const char* name : {"--connection", "--database", "--unattended", "--company", "--shop", "--user", "--date"}) {
      EXPECT_NE(host.Complaint().find(name), std::string::npos) << question << " says nothing of " << name;
    }
  }
}

TEST(HostProgram, TheSwitchesPresetItsWindow) {
  const ShopFolder folder;
  Program host(Host(InShop(folder) + "--company 2 --shop 1 --user 3 --date 01/02/2024"));
  Person nora(host);
  FormOnScreen form = nora.Meets("Shop host");
  form.Shows("Company:", "Sunmill Bakeries");
  form.Shows("Shop:", "Harbour Street");
  form.Shows("User:", "Sean O'Dowd");
  form.Shows("Process date:", "01/02/2024");
  form.Click("Exit");
  EXPECT_EQ(host.ExitCode(), 0u);
}

TEST(HostProgram, ASwitchThatNamesNobodyIsRefused) {
  const ShopFolder folder;
  Program host(Host(InShop(folder) + "--shop 1 --user 99"));
  Person nora(host);
  EXPECT_EQ(nora.Answers("OK"), "There is no user 99 in this shop");
  EXPECT_EQ(host.ExitCode(), 1u);
}

}  // namespace
}  // namespace person
