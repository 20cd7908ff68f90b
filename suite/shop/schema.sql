-- The suite's tables as far as the goods-request component touches them, in the server's own dialect.
-- Keys and the ids that join tables are not null; every other column may be null.
-- The views read the smp* tables, which take the place of the suite's own bookkeeping.
-- A database set up for replication runs replication.sql right after this script.

-- Requests

create table mosGoodsRequestHeader (
    GRHrequestID int not null,
    GRHshopID int not null,
    GRHrequestno varchar(50) null,
    GRHrequestdate datetime null,
    GRHrequestTime datetime null,
    GRHremarks varchar(250) null,
    GRHrecaddUser varchar(50) null,
    GRHrecmoduser varchar(50) null,
    GRHTransFinished bit null default 0,
    GRHNoofDetails int null,
    GRHhqrequestgenerated int null default 0,
    GRHrequesttype char(1) null,
    GRHIssuenotegenerated bit null default 0,
    GRHcancel bit null default 0,
    GRHcancelRemarks varchar(255) null,
    updatetime datetime null,
    primary key (GRHshopID, GRHrequestID)
)
go
create index mosGoodsRequestHeaderDate on mosGoodsRequestHeader (GRHshopID, GRHrequestdate)
go
create index mosGoodsRequestHeaderNumber on mosGoodsRequestHeader (GRHshopID, GRHrequestno)
go
create index mosGoodsRequestHeaderId on mosGoodsRequestHeader (GRHrequestID)
go
create table mosGoodsRequestDetail (
    GRDDetailid smallint not null,
    GRDshopID int not null,
    GRDrequestID int not null,
    GRDitemID int not null,
    GRDreqcomments varchar(250) null,
    GRDgoodQty decimal(18,3) null,
    GRDexpectremarks varchar(250) null,
    GRDbadQty decimal(18,3) null,
    primary key (GRDshopID, GRDrequestID, GRDDetailid)
)
go
create index mosGoodsRequestDetailRequest on mosGoodsRequestDetail (GRDrequestID)
go
create table mosRequestInvDetail (
    reqcompanyid int not null,
    reqdid int not null,
    reqddetailid smallint null,
    reqinvdshopid int not null,
    reqinvdinvoiceid int null,
    reqReexportID int null
)
go
create index mosRequestInvDetailRequest on mosRequestInvDetail (reqdid)
go
create index mosRequestInvDetailInvoice on mosRequestInvDetail (reqinvdinvoiceid)
go
create index mosRequestInvDetailReexport on mosRequestInvDetail (reqReexportID)
go
create table aShopItemDetail (
    ShopID int not null,
    ItemID int not null,
    ItemReorderLevel decimal(18,3) null,
    ReorderQuantity decimal(18,3) null,
    RequestRaised smallint null default 0,
    shortcutno int null default 0,
    primary key (ShopID, ItemID)
)
go
create index aShopItemDetailItem on aShopItemDetail (ItemID)
go
create index aShopItemDetailShortcut on aShopItemDetail (ShopID, shortcutno)
go

-- Session, settings, rights

create table loUsers (
    UserID int not null,
    ShopID int not null,
    UserName varchar(50) null
)
go
create index loUsersUser on loUsers (UserID, ShopID)
go
create table aUsers (
    UserID int not null,
    ShopID int not null,
    UserName varchar(50) null
)
go
create index aUsersUser on aUsers (UserID, ShopID)
go
create table louserrights (
    userid int not null,
    interfaceid int not null,
    companyid int not null,
    functionrights varchar(50) null
)
go
create index louserrightsUser on louserrights (userid, interfaceid, companyid)
go
create table aPackageSettings (
    IntegerQuantity bit null,
    TransactionsSummary bit null,
    alias bit null,
    allowitemcodeduplication bit null
)
go
create table aShops (
    ShopID int not null,
    shopname varchar(100) null,
    address varchar(250) null,
    telephoneno varchar(50) null,
    faxno varchar(50) null,
    cityid int not null,
    countryid int not null,
    RequestForNonShopItem bit null,
    PreserveItemDetails bit null,
    MaxRequestItemsToHQ int null,
    miscsettings13 varchar(50) null,
    futurevarchar varchar(50) null,
    DepartmentID smallint not null,
    RevisedCostPricePercent decimal(9,3) null
)
go
create index aShopsShop on aShops (ShopID)
go
create table LOsSettings (
    ShopID int not null,
    sNoofBackDays smallint null,
    defaultfetch varchar(50) null
)
go
create table smpShopClose (
    shopid int not null,
    closedate datetime null
)
go
create view vwshopCloseDate as
select shopid, closedate from smpShopClose
go
create table aTables (
    tableid int not null,
    tablename varchar(100) null
)
go
create table aTableColumns (
    tableid int not null,
    columnname varchar(100) null,
    columnheader varchar(100) null
)
go
create index aTableColumnsTable on aTableColumns (tableid)
go
create table aListviewHeader (
    lvwid int not null,
    lvwtransname varchar(50) null,
    lvwname varchar(50) null,
    lvwmodulename varchar(50) null
)
go
create table aListviewDetails (
    lvwdid int not null,
    lvwcolid varchar(10) null,
    lvwdcolwidth int null,
    lvwdcolalign int null
)
go
create table aPrefix (
    Prefix varchar(20) null,
    InterfaceID int not null,
    FinancialId int not null,
    shopid int not null
)
go
create table aFinancialYear (
    FinancialId int not null,
    CurFinancialYear bit null
)
go
create table aAlias (
    aliasid int not null,
    Alias varchar(50) null
)
go
create table aCompanyMaster (
    companyid int not null,
    name varchar(100) null,
    Address1 varchar(100) null,
    Address2 varchar(100) null,
    Address3 varchar(100) null
)
go
create table aCity (
    cityid int not null,
    CityName varchar(50) null
)
go
create table aCountryMaster (
    countryid int not null,
    CountryName varchar(50) null
)
go
create table aDepartmentMaster (
    departmentid smallint not null,
    departmentname varchar(50) null
)
go
create table aShopPrintMessages (
    shopid int not null,
    transtype varchar(20) null,
    messageid int not null,
    message varchar(250) null,
    allignment char(1) null
)
go

-- Items, packing, prices

create table aItem (
    ItemId int not null,
    ItemCode varchar(50) null,
    part_code varchar(50) null,
    brand varchar(50) null,
    modelno varchar(50) null,
    itemtype char(1) null,
    active bit null,
    forsales bit null,
    UnitsId int not null,
    PriceFixedAtHq bit null,
    itemrate decimal(18,3) null
)
go
create index aItemItem on aItem (ItemId)
go
create index aItemCode on aItem (ItemCode)
go
create index aItemPartCode on aItem (part_code)
go
create table smpItemDescription (
    ItemID int not null,
    ItemDescription varchar(200) null,
    code varchar(50) null
)
go
create index smpItemDescriptionItem on smpItemDescription (ItemID)
go
create view vwItemDescription as
select ItemID, ItemDescription, code from smpItemDescription
go
create view vwItemDescriptionPrint as
select ItemID as ItemId, ItemDescription as itemdescription from smpItemDescription
go
create table aUnit (
    UnitId int not null,
    UnitCode varchar(20) null
)
go
create index aUnitUnit on aUnit (UnitId)
go
create table aItemPackingDetail (
    itemid int not null,
    packingtypeid int not null,
    packingbarcode varchar(50) null,
    active bit null
)
go
create index aItemPackingDetailItem on aItemPackingDetail (itemid, packingtypeid)
go
create index aItemPackingDetailBarcode on aItemPackingDetail (packingbarcode)
go
create table aPackingType (
    packingtypeid int not null,
    PackingTypeName varchar(50) null
)
go
create index aPackingTypeType on aPackingType (packingtypeid)
go
create table aPackingTypeCapacityDetail (
    packingtypeid int not null,
    unitsid int not null,
    quantity decimal(18,3) null
)
go
create index aPackingTypeCapacityDetailType on aPackingTypeCapacityDetail (packingtypeid, unitsid)
go
create table smpItemRetailPacking (
    ItemId int not null,
    PackingTypeId int not null
)
go
create index smpItemRetailPackingItem on smpItemRetailPacking (ItemId, PackingTypeId)
go
create view vwItemRetailPacking as
select ItemId, PackingTypeId from smpItemRetailPacking
go
create table losShopItemShipmentDetail (
    ItemId int not null,
    PackingTypeId int not null,
    ShopId int null,
    SellingPrice decimal(18,3) null
)
go
create index losShopItemShipmentDetailItem on losShopItemShipmentDetail (ItemId, PackingTypeId)
go

-- Stock

create table smpShopStock (
    shopid int not null,
    itemid int not null,
    stock decimal(18,3) null
)
go
create index smpShopStockShop on smpShopStock (shopid, itemid)
go
create index smpShopStockItem on smpShopStock (itemid)
go
create view vwInquiryShopStock as
select shopid, itemid, stock from smpShopStock
go
create view vwInquiryShopStockSummary as
select shopid, itemid, sum(stock) as stock from smpShopStock group by shopid, itemid
go
create table smpGodownStock (
    godownid int not null,
    gsitemid int not null,
    gsstock decimal(18,3) null
)
go
create index smpGodownStockItem on smpGodownStock (gsitemid)
go
create view vwInquiryGodownStock as
select gsitemid, gsstock from smpGodownStock
go
create table meiDespatchToShopHeader (
    dhDespatchID int not null,
    dhCancelled bit null,
    dhTransFinished bit null
)
go
create index meiDespatchToShopHeaderDespatch on meiDespatchToShopHeader (dhDespatchID)
go
create table meiDespatchToShopDetail (
    ddDespatchID int not null,
    ddItemID int not null,
    ddItemGoodQty decimal(18,3) null
)
go
create index meiDespatchToShopDetailDespatch on meiDespatchToShopDetail (ddDespatchID)
go
create index meiDespatchToShopDetailItem on meiDespatchToShopDetail (ddItemID)
go
create table ahqIssueNoteheader (
    INHIssuenoteID int not null,
    INHCancelled bit null,
    INHUsed bit null,
    INHTransFinished bit null
)
go
create index ahqIssueNoteheaderNote on ahqIssueNoteheader (INHIssuenoteID)
go
create table ahqIssueNotedetail (
    INDIssuenoteID int not null,
    INDItemID int not null,
    INDQty decimal(18,3) null
)
go
create index ahqIssueNotedetailNote on ahqIssueNotedetail (INDIssuenoteID)
go
create index ahqIssueNotedetailItem on ahqIssueNotedetail (INDItemID)
go
create table aHqIssueNoteMain (
    INMIssuenoteID int not null,
    INMCancel bit null,
    departmentid smallint null
)
go
create index aHqIssueNoteMainNote on aHqIssueNoteMain (INMIssuenoteID)
go
-- The active, saleable items of the shop's item list with stock above 0 in godowns and none in the shop.
-- @text is empty or a condition that starts with " and " over a (item) and v (description);
-- @flag is part of the call's form and changes nothing here.
create procedure spgodownitemnotinshop
    @shopid int,
    @text varchar(8000),
    @flag int = 1
as
begin
    set nocount on
    declare @shop varchar(12)
    declare @sql varchar(max)
    set @shop = cast(@shopid as varchar(12))
    set @sql = 'select a.itemid, a.itemcode, v.itemdescription, a.brand, a.modelno, isnull(a.part_code, '''') part_code'
        + ' from aItem a'
        + ' inner join vwItemDescription v on v.ItemID = a.ItemId'
        + ' inner join aShopItemDetail sd on sd.ItemID = a.ItemId and sd.ShopID = ' + @shop
        + ' where a.active = 1 and a.forsales = 1'
        + ' and isnull((select sum(g.gsstock) from vwInquiryGodownStock g where g.gsitemid = a.ItemId), 0) > 0'
        + ' and isnull((select sum(s.stock) from vwInquiryShopStock s'
        + ' where s.itemid = a.ItemId and s.shopid = ' + @shop + '), 0) <= 0'
        + isnull(@text, '')
    exec(@sql)
end
go

-- Customer documents

create table losinvoiceheader (
    ihInvoiceID int not null,
    ihShopID int not null,
    ihCompanyId int not null,
    ihInvoiceNo varchar(50) null,
    ihType char(1) null,
    ihProformaID int null,
    ihCancelled bit null,
    ihTransFinished bit null
)
go
create index losinvoiceheaderInvoice on losinvoiceheader (ihInvoiceID, ihShopID)
go
create index losinvoiceheaderShop on losinvoiceheader (ihShopID, ihType)
go
create index losinvoiceheaderProforma on losinvoiceheader (ihProformaID)
go
create table losinvoicedetail (
    idInvoiceID int not null,
    idShopID int not null,
    idItemID int not null,
    idQuantity decimal(18,3) null,
    idDescription varchar(250) null
)
go
create index losinvoicedetailInvoice on losinvoicedetail (idInvoiceID, idShopID)
go
create table smpInvoicedPosRequests (
    ihShopID int not null,
    RequestID int not null,
    invoiceid int not null
)
go
create index smpInvoicedPosRequestsInvoice on smpInvoicedPosRequests (invoiceid)
go
create view vwInvoicedPosRequests as
select ihShopID, RequestID, invoiceid from smpInvoicedPosRequests
go
create table losExportHeader (
    rehExportID int not null,
    rehExportNo varchar(50) null,
    rehShopID int not null,
    rehCompanyID int not null,
    rehCancelled bit null,
    rehtype char(1) null
)
go
create index losExportHeaderExport on losExportHeader (rehExportID, rehShopID)
go
create index losExportHeaderShop on losExportHeader (rehShopID, rehtype)
go
create table losExportDetail (
    redExportID int not null,
    redShopID int not null,
    redItemID int not null,
    redQuantity decimal(18,3) null,
    redDescription varchar(250) null
)
go
create index losExportDetailExport on losExportDetail (redExportID, redShopID)
go
create table losInvoiceProjectRequestDetails (
    idrInvoiceId int not null,
    idrShopId int not null,
    idrCompanyId int not null
)
go
create index losInvoiceProjectRequestDetailsInvoice on losInvoiceProjectRequestDetails (idrInvoiceId)
go
