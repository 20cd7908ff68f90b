#pragma once

#include <cstdint>
#include <string>

#include "src/module/settings_reader.h"

namespace goods {

/// What ShopSetting.txt says about the slip's lines. Widths are characters; numbers are 16-bit, an absent or non-numeric value is
/// 0.
struct SlipSettings {
  std::string port;
  std::int16_t internalprintnoofrecords = 0;  ///< item lines a page; 0 is one endless page
  std::int16_t pagewidth = 0;
  std::int16_t SlNo = 0;
  std::int16_t Qty = 0;
  std::int16_t Unit = 0;
  std::int16_t Rate = 0;
  std::int16_t Amount = 0;
  bool printheadertopline = false;
  bool printheaderbottomline = false;
  bool printdetailbottomline = false;
  std::int16_t spaceinlinecode = 0;
  bool printfooterineachpage = false;
  bool showcostintrans = false;
  bool showspintransrep = false;
  bool showitemcodeinprint = false;
  bool printinsavedorder = false;
  bool showtotalqty = false;

  /// Error 6 when a number leaves the 16-bit range.
  static SlipSettings Read(SettingsFile& file);
};

/// What ShopSetting.txt says about the slip's header.
struct SlipHeaderSettings {
  std::int16_t headerleftmargin = 0;
  bool linesafterheader = false;
  bool linesafteraddress = false;
  std::int16_t totalheadcount = 0;
  std::int16_t printtransnameabove = 0;  ///< 1 above the company, 0 below the remarks, else no title
  std::int16_t linetoskipfirst = 0;
  bool PrintCompanyName = false;
  bool printadd[3] = {};

  /// Error 6 when a number leaves the 16-bit range.
  static SlipHeaderSettings Read(SettingsFile& file);
};

}  // namespace goods
