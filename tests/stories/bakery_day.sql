update aPackageSettings set alias = 1
go
