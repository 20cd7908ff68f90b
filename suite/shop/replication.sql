-- A database set up for replication: the request lines carry a row identifier with increasing values.
-- Runs right after schema.sql, while the table is still empty.
drop table mosGoodsRequestDetail
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
    rowguid uniqueidentifier rowguidcol not null default (newsequentialid()),
    primary key (GRDshopID, GRDrequestID, GRDDetailid)
)
go
create index mosGoodsRequestDetailRequest on mosGoodsRequestDetail (GRDrequestID)
go
create index mosGoodsRequestDetailRow on mosGoodsRequestDetail (rowguid)
go
