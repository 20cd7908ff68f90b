-- Companies, shops, people and settings.

insert into aCompanyMaster (companyid, name, Address1, Address2, Address3) values
(1, 'Meridian Household Trading', '4 Customs Quay', 'Old Harbour', 'PO Box 210'),
(2, 'Sunmill Bakeries', '1 Mill Lane', null, null)
go

insert into aCity (cityid, CityName) values
(1, 'Aveiro'),
(2, 'Gothenburg'),
(3, 'Ghent')
go

insert into aCountryMaster (countryid, CountryName) values
(1, 'Portugal'),
(2, 'Sweden'),
(3, 'Belgium')
go

insert into aDepartmentMaster (departmentid, departmentname) values
(1, 'Household'),
(2, 'Hardware and garden'),
(3, 'Food')
go

-- Used only when the package settings ask for aliases.
insert into aAlias (aliasid, Alias) values
(1, 'Store'),
(2, 'Warehouse')
go

insert into aPackageSettings (IntegerQuantity, TransactionsSummary, alias, allowitemcodeduplication) values
(0, null, 0, 0)
go

-- Shop 3 sells items of type B only. Shops 1 and 2 belong to company 1, shop 3 to company 2.
insert into aShops (ShopID, shopname, address, telephoneno, faxno, cityid, countryid, RequestForNonShopItem, PreserveItemDetails, MaxRequestItemsToHQ, miscsettings13, futurevarchar, DepartmentID, RevisedCostPricePercent) values
(1, 'Harbour Street', '12 Harbour Street
Old Harbour', '+351 555 0112', '+351 555 0113', 1, 1, 1, 1, 100, 'abd', 'N1', 1, 12.500),
(2, 'Hill Square', '3 Hill Square', '+46 555 0170', null, 2, 2, 0, 0, 5, 'ab', null, 2, null),
(3, 'Mill Lane Bakery', '1 Mill Lane', '+32 555 0144', '+32 555 0145', 3, 3, 0, 0, 0, null, 'b', 3, 5.000)
go

insert into LOsSettings (ShopID, sNoofBackDays, defaultfetch) values
(1, 60, 'ItemDescription'),
(2, 30, null),
(3, 45, 'itemcode')
go

-- Shop 2 has not closed its books since the turn of the year; shop 3 never does.
insert into smpShopClose (shopid, closedate) values
(1, '20240229'),
(2, '20231231')
go

-- Years 2021/22 to 2024/25; the third is the current one.
insert into aFinancialYear (FinancialId, CurFinancialYear) values
(1, 0),
(2, 0),
(3, 1),
(4, 0)
go

-- Shop 3 has no prefix this year.
insert into aPrefix (Prefix, InterfaceID, FinancialId, shopid) values
('GR22/', 1503, 1, 1),
('GR23/', 1503, 2, 1),
('GR24/', 1503, 3, 1),
('GR25/', 1503, 4, 1),
('CI24/', 1201, 3, 1),
('HS23/', 1503, 2, 2),
('HS24/', 1503, 3, 2),
('BK23/', 1503, 2, 3)
go

insert into loUsers (UserID, ShopID, UserName) values
(1, 1, 'Nora Halvard'),
(2, 1, 'Ines Caldeira'),
(3, 1, 'Sean O''Dowd'),
(4, 1, 'Maximiliane Oberhofer-Lindquist'),
(5, 1, 'Priya Raman'),
(6, 1, 'Luka Petrov'),
(7, 1, 'Tomas Reyes'),
(8, 1, 'Yuki Amano'),
(1, 2, 'Nora Halvard'),
(9, 2, 'Ayo Balogun'),
(10, 3, 'Greta Lindholm'),
(11, 3, 'Émile Dubosc')
go

insert into aUsers (UserID, ShopID, UserName) values
(1, 1, 'Nora Halvard'),
(2, 1, 'Ines Caldeira'),
(3, 1, 'Sean O''Dowd'),
(4, 1, 'Maximiliane Oberhofer-Lindquist'),
(5, 1, 'Priya Raman'),
(6, 1, 'Luka Petrov'),
(7, 1, 'Tomas Reyes'),
(8, 1, 'Yuki Amano'),
(1, 2, 'Nora Halvard'),
(9, 2, 'Ayo Balogun'),
(10, 3, 'Greta Lindholm'),
(11, 3, 'Émile Dubosc')
go

-- Interface 1503 is the goods request. User 5 has no row for it.
insert into louserrights (userid, interfaceid, companyid, functionrights) values
(1, 1503, 1, 'NEDP'),
(1, 1503, 2, 'P'),
(1, 1201, 1, 'NE'),
(2, 1503, 1, ' n e d p '),
(3, 1503, 1, 'ADMIN'),
(4, 1503, 1, 'DP'),
(5, 1201, 1, 'NEDP'),
(6, 1503, 1, null),
(7, 1503, 1, ''),
(8, 1503, 1, 'admin '),
(9, 1503, 1, 'NEP'),
(10, 1503, 2, 'NEDP'),
(11, 1503, 2, 'P')
go

insert into aTables (tableid, tablename) values
(1, 'mosGoodsRequestHeader'),
(2, 'losinvoiceheader')
go

insert into aTableColumns (tableid, columnname, columnheader) values
(1, 'GRHrequestID', 'Request ID'),
(1, 'GRHrequestno', 'Request No'),
(1, 'GRHrequestdate', 'Request Date'),
(1, 'GRHremarks', 'Remarks'),
(1, 'GRHcancel', 'Cancelled'),
(1, 'GRHTransFinished', 'Finished'),
(2, 'ihInvoiceID', 'Invoice ID'),
(2, 'ihInvoiceNo', 'Invoice No')
go

insert into aListviewHeader (lvwid, lvwtransname, lvwname, lvwmodulename) values
(1, 'GoodsRequest', 'lvwrequest', 'GoodsRequest')
go

-- Column, width in twips, alignment: 0 left, 1 right, 2 centre.
insert into aListviewDetails (lvwdid, lvwcolid, lvwdcolwidth, lvwdcolalign) values
(1, '1', 700, 0),
(1, '2', 1300, 0),
(1, '3', 3000, 0),
(1, '4', 1100, 1),
(1, '5', 0, 1),
(1, '6', 1900, 0),
(1, '7', 750, 2),
(1, '8', 1200, 0)
go

insert into aShopPrintMessages (shopid, transtype, messageid, message, allignment) values
(1, 'POSPO', 2, 'Goods are checked on arrival', 'M'),
(1, 'POSPO', 1, 'Received by: ____________________', 'L'),
(1, 'POSPO', 3, 'Harbour Street, goods entrance', 'R'),
(1, 'POSINV', 1, 'Thank you for your visit', 'M'),
(3, 'POSPO', 1, 'Keep cool', 'L')
go
