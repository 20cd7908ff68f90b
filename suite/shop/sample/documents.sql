-- Customer invoices and re-exports. Type R documents are customer requests.

-- On offer in shop 1 are 1001, 1002, 1003 and 1008 (held by a cancelled request only); 1004 is invoiced, 1005 is a proforma
-- of 1105, 1006 is cancelled, 1007, 1009 and 1013 are held by live requests, 1010 is unfinished.
insert into losinvoiceheader (ihInvoiceID, ihShopID, ihCompanyId, ihInvoiceNo, ihType, ihProformaID, ihCancelled, ihTransFinished) values
(1001, 1, 1, 'CR24/101', 'R', null, 0, 1),
(1002, 1, 1, 'CR24/102', 'R', null, 0, 1),
(1003, 1, 1, 'CR24/103', 'R', null, 0, 1),
(1004, 1, 1, 'CR24/104', 'R', null, 0, 1),
(1005, 1, 1, 'CR24/105', 'R', null, 0, 1),
(1006, 1, 1, 'CR24/106', 'R', null, 1, 0),
(1007, 1, 1, 'CR24/107', 'R', null, 0, 1),
(1008, 1, 1, 'CR24/108', 'R', null, 0, 1),
(1009, 1, 1, 'CR24/109', 'R', null, 0, 1),
(1010, 1, 1, 'CR24/110', 'R', null, 0, 0),
(1011, 1, 1, 'CR24/111', 'I', null, 0, 1),
(1012, 1, 2, 'CR24/112', 'R', null, 0, 1),
(1013, 1, 1, 'CR24/113', 'R', null, 0, 1),
(1104, 1, 1, 'CI24/231', 'I', null, 0, 1),
(1105, 1, 1, 'CI24/232', 'I', 1005, 0, 1),
(1001, 2, 1, 'CRH24/11', 'R', null, 0, 1),
(1201, 2, 1, 'CRH24/12', 'R', null, 0, 1),
(1301, 3, 2, 'CRB24/1', 'R', null, 0, 1)
go

insert into losinvoicedetail (idInvoiceID, idShopID, idItemID, idQuantity, idDescription) values
(1001, 1, 1, 4.000, 'for the school kitchen'),
(1001, 1, 2, 6.000, null),
(1002, 1, 2, 2.000, null),
(1002, 1, 97, 10.000, 'white only'),
(1003, 1, 55, 40.000, null),
(1003, 1, 58, 12.000, null),
(1003, 1, 70, 60.500, 'cut to length'),
(1004, 1, 160, 3.000, null),
(1005, 1, 163, 5.000, null),
(1006, 1, 92, 6.000, null),
(1007, 1, 30, 12.000, null),
(1007, 1, 32, 12.000, 'gift boxed'),
(1008, 1, 129, 24.000, null),
(1009, 1, 235, 8.000, null),
(1010, 1, 64, 2.000, null),
(1011, 1, 1, 1.000, null),
(1012, 1, 2, 1.000, null),
(1013, 1, 175, 10.000, null),
(1013, 1, 187, 30.000, null),
(1104, 1, 160, 3.000, null),
(1105, 1, 163, 5.000, null),
(1001, 2, 2, 3.000, null),
(1201, 2, 100, 6.000, null),
(1201, 2, 102, 6.000, null),
(1301, 3, 296, 4.000, 'birthday party')
go

insert into losInvoiceProjectRequestDetails (idrInvoiceId, idrShopId, idrCompanyId) values
(1003, 1, 1),
(1013, 1, 1)
go

insert into smpInvoicedPosRequests (ihShopID, RequestID, invoiceid) values
(1, 1004, 1104)
go

-- On offer in shop 1 are 501, 504 (held by a cancelled request only) and 1001, which shares its id with an invoice.
insert into losExportHeader (rehExportID, rehExportNo, rehShopID, rehCompanyID, rehCancelled, rehtype) values
(501, 'RX24/31', 1, 1, 0, 'R'),
(502, 'RX24/32', 1, 1, 1, 'R'),
(503, 'RX24/33', 1, 1, 0, 'R'),
(504, 'RX24/34', 1, 1, 0, 'R'),
(505, 'RX24/35', 1, 1, 0, 'S'),
(1001, 'RX24/36', 1, 1, 0, 'R'),
(506, 'RXH24/4', 2, 1, 0, 'R')
go

insert into losExportDetail (redExportID, redShopID, redItemID, redQuantity, redDescription) values
(501, 1, 124, 50.000, 'conference folders'),
(501, 1, 129, 100.000, null),
(502, 1, 130, 20.000, null),
(503, 1, 237, 6.000, null),
(503, 1, 250, 4.000, null),
(504, 1, 247, 3.000, null),
(505, 1, 1, 2.000, null),
(1001, 1, 1, 5.000, 'replacement for damaged goods'),
(506, 2, 100, 12.000, null)
go
