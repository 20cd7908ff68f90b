' Tries on a server what the goods-request component assumes about it, and says of each assumption of docs/SERVER.md whether it
' holds there. It takes ten minutes at most and needs an empty scratch database, which is empty again afterwards.
'
'   cscript //nologo try_server.vbs "/connection:Provider=...;Data Source=...;Initial Catalog=scratch;..."
'           [/sql:FOLDER] [/report:FILE] [/road] [/road:client]
'
'   /connection  an ADO connection string; run the script once for each provider in use. "embedded:FILE" is the embedded database.
'   /sql         where schema.sql, replication.sql and the folder sample are; suite\shop beside this script's folder otherwise
'   /report      the file that gets the lines, too
'   /road        opens the component's register for somebody who raises one request there, and checks what is stored then;
'                /road:client does so on a connection with client-side cursors
'
' Each line is: the assumption's id, "passed", "failed" or "not tried", the assumption, and after a dash what was seen or why it was
' not tried. The last line is the total.
' Exit code: 0 nothing failed, 1 something failed, 2 nothing could be tried (and why).
'
' One file of this length on purpose: it is copied to a shop's machine by itself.
Option Explicit

' ADO's constants.
Const ForwardCursor = 0, KeysetCursor = 1, DynamicCursor = 2, StaticCursor = 3
Const LockReadOnly = 1, LockOptimistic = 3, LockBatch = 4
Const UseServer = 2, UseClient = 3
Const IsOpen = 1, IsExecuting = 4
Const CmdText = 1, NoRecords = 128, Async = 16
' Errors that the component expects, as they arrive in Err.Number.
Const ErrRowsNotReleased = &H80040E25
Const ErrIntegrity = &H80040E2F
Const ErrTimeout = &H80040E31
Const ErrRowNotFound = &H80040E38
Const ErrFailed = &H80004005
Const ErrNoCurrentRecord = 3021

Const NativeDuplicate = 2627
Const NativeDeadlock = 1205
Const NativeLockTimeout = 1222
Const NativeEndedInTrigger = 3609
Const BrokenConnection = " 11 64 121 233 596 6005 10053 10054 10060 "

Const TrialRequest = 900001  ' the request id of all that is written here
Const Company = 1, Shop = 1, User = 1

Const NoTriggers = "the embedded engine has no triggers"
Const OneWriter = "the embedded engine lets one connection write at a time"

Dim connectionText, sqlFolder, reportFile, road
Dim keeper        ' what makes the embedded engine's objects, as long as it lives
Dim embedded      ' whether it is the embedded engine that is tried
Dim con           ' the open connection of this pass
Dim pass          ' how that connection was made, for the lines
Dim clientSide    ' whether its cursors are on the client
Dim made          ' the drop statements of what was made, in the order of making
Dim ids, decided  ' of the trial that runs
Dim passedCount, failedCount, notTriedCount
Dim errNumber, errText, errNative, errState  ' of the last statement that was allowed to fail
Dim rowsError     ' the error's number of the last batch or change tried, 0 for none

Main

Sub Main()
  passedCount = 0
  failedCount = 0
  notTriedCount = 0
  Set made = CreateObject("Scripting.Dictionary")
  Set decided = CreateObject("Scripting.Dictionary")
  Set con = Nothing
  ReadArguments
  If Not Connects() Then Refuse "Cannot connect: " & errText
  RefuseShopDatabase
  If Not MakesShop() Then
    CleanUp
    Refuse "Cannot make the sample shop: " & errText
  End If

  Say Describes()
  TryOnEveryConnection "server-side cursors"
  TryOnce
  If Reconnects(True, False) Then TryOnEveryConnection "client-side cursors"
  If Reconnects(False, True) Then TryOnEveryConnection "server-side cursors, British log-in"
  TryRoad
  If Reconnects(False, False) Then TryReplication

  CleanUp
  Say passedCount & " passed, " & failedCount & " failed, " & notTriedCount & " not tried"
  If failedCount > 0 Then WScript.Quit 1
  WScript.Quit 0
End Sub

' ---- The run

Sub ReadArguments()
  Dim argument, files, here, i
  ' The other script host would show each line in a message box.
  If InStr(LCase(WScript.FullName), "wscript.exe") > 0 Then Refuse "Run this with cscript."
  Set files = CreateObject("Scripting.FileSystemObject")
  here = files.GetParentFolderName(WScript.ScriptFullName)
  sqlFolder = files.BuildPath(files.GetParentFolderName(here), "suite\shop")
  For i = 0 To WScript.Arguments.Count - 1
    argument = WScript.Arguments(i)
    If IsOption(argument, "/connection:") Then
      connectionText = Mid(argument, Len("/connection:") + 1)
    ElseIf IsOption(argument, "/sql:") Then
      sqlFolder = Mid(argument, Len("/sql:") + 1)
    ElseIf IsOption(argument, "/report:") Then
      reportFile = Mid(argument, Len("/report:") + 1)
    ElseIf LCase(argument) = "/road" Or LCase(argument) = "/road:client" Then
      road = LCase(argument)
    Else
      Refuse "Unknown argument: " & argument
    End If
  Next
  If connectionText = "" Then Refuse "Which database? /connection:""Provider=...;Data Source=...;Initial Catalog=..."""
  If reportFile <> "" Then files.CreateTextFile(reportFile, True).Close
  If Not files.FileExists(files.BuildPath(sqlFolder, "schema.sql")) Then Refuse "There is no schema.sql in " & sqlFolder
  embedded = IsOption(connectionText, "embedded:")
End Sub

Function IsOption(argument, name)
  IsOption = LCase(Left(argument, Len(name))) = name
End Function

' A connection as a host makes one. The caller's error trap gets what goes wrong.
Function NewConnection(onClient, british)
  Dim connection
  If embedded And IsEmpty(keeper) Then Set keeper = CreateObject("ShopSuite.Database")
  Set connection = CreateObject("ADODB.Connection")
  If onClient Then connection.CursorLocation = UseClient
  connection.Open connectionText
  If british Then connection.Execute "set language british", , CmdText + NoRecords
  If british Then connection.Execute "set dateformat dmy", , CmdText + NoRecords
  Set NewConnection = connection
End Function

Function Connects()
  On Error Resume Next
  Set con = NewConnection(False, False)
  errText = Err.Description
  Connects = Err.Number = 0
End Function

' Which provider and server the lines are about.
Function Describes()
  Dim version
  Describes = "Provider " & con.Provider & ", ADO " & con.Version
  If embedded Then Exit Function
  version = Split(FirstValue("select @@version"), vbLf)
  Describes = Describes & ", " & version(0)
End Function

' The next pass's connection.
Function Reconnects(onClient, british)
  On Error Resume Next
  con.Close
  Err.Clear
  Set con = NewConnection(onClient, british)
  Reconnects = Err.Number = 0
  errText = Err.Description
  clientSide = onClient
  On Error GoTo 0
  If Reconnects Then Exit Function
  Begin "C1"
  Failed "C1", "a host's connection opens", errText
End Function

' A database with any of our tables is somebody's shop: nothing may be written there.
Sub RefuseShopDatabase()
  Dim name
  For Each name In ObjectNames()
    If Not IsNull(FirstValue("select object_id('" & name & "')")) Then
      Refuse "The database holds " & name & " already. The trial needs an empty scratch database."
    End If
  Next
End Sub

' All that schema.sql makes but indexes, and what the trial and the stand-ins of the suite's helpers make.
Function ObjectNames()
  Dim batch, names, words
  names = "smpUserAudit smpGridSettings tryThree tryTriggered tryTwo tryDates"
  For Each batch In Batches("schema.sql")
    words = Split(MadeBy(batch), " ")
    If UBound(words) = 1 Then names = names & " " & words(1)
  Next
  ObjectNames = Split(names, " ")
End Function

' "table aShops" of "create table aShops (...": empty for a batch that makes an index or nothing.
Function MadeBy(batch)
  Dim words, i
  MadeBy = ""
  words = Split(Trim(Replace(Replace(batch, vbCr, " "), vbLf, " ")), " ")
  For i = 0 To UBound(words) - 2
    If LCase(words(i)) = "create" Then
      Select Case LCase(words(i + 1))
        Case "table", "view", "procedure": MadeBy = LCase(words(i + 1)) & " " & words(i + 2)
      End Select
      Exit Function
    End If
  Next
End Function

Function MakesShop()
  Dim name
  MakesShop = False
  If Not RunsScript("schema.sql") Then Exit Function
  For Each name In Array("shops", "items", "packing", "stock", "documents", "requests")
    If Not RunsScript("sample\" & name & ".sql") Then Exit Function
  Next
  If Not Makes("create table tryThree (n int not null)") Then Exit Function
  If Not Makes("create table tryTriggered (n int not null)") Then Exit Function
  If Not Makes("create table tryTwo (id int not null primary key, n int null)") Then Exit Function
  If Not Makes("create table tryDates (d datetime null)") Then Exit Function
  If Fails("insert into tryThree (n) values (1), (2), (3)") Then Exit Function
  If Fails("insert into tryTwo (id, n) values (1, 0), (2, 0)") Then Exit Function
  MakesShop = True
End Function

Function RunsScript(name)
  Dim batch
  RunsScript = False
  For Each batch In Batches(name)
    If Not Makes(batch) Then Exit Function
  Next
  RunsScript = True
End Function

' Runs a batch, and notes what it made, for CleanUp.
Function Makes(batch)
  Makes = Not Fails(batch)
  If Not Makes Then
    errText = errText & " (" & Left(batch, 60) & "...)"
  ElseIf MadeBy(batch) <> "" Then
    made("drop " & MadeBy(batch)) = True
  End If
End Function

' The batches of a file, between lines that hold only "go".
Function Batches(name)
  Dim line, batch, all
  all = ""
  batch = ""
  For Each line In Split(Replace(TextOf(name), vbCr, ""), vbLf)
    If LCase(Trim(line)) = "go" Then
      all = all & batch & vbFormFeed
      batch = ""
    Else
      batch = batch & line & vbLf
    End If
  Next
  If Trim(Replace(batch, vbLf, "")) <> "" Then all = all & batch & vbFormFeed
  If all <> "" Then all = Left(all, Len(all) - 1)
  Batches = Split(all, vbFormFeed)
End Function

Function TextOf(name)
  Dim stream, path
  path = CreateObject("Scripting.FileSystemObject").BuildPath(sqlFolder, name)
  On Error Resume Next
  Set stream = CreateObject("ADODB.Stream")
  stream.Charset = "utf-8"
  stream.Open
  stream.LoadFromFile path
  TextOf = stream.ReadText
  If Err.Number = 0 Then Exit Function
  ' Where there is no stream the sample's few letters with accents come out as two; nothing that is tried looks at them.
  On Error GoTo 0
  TextOf = CreateObject("Scripting.FileSystemObject").OpenTextFile(path, 1).ReadAll
End Function

Sub CleanUp()
  Dim drops, i
  If Not embedded Then Ignore "drop trigger tryTrigger"
  drops = made.Keys
  For i = UBound(drops) To 0 Step -1
    Ignore drops(i)
  Next
End Sub

Sub Refuse(text)
  Say text
  WScript.Quit 2
End Sub

Sub Say(text)
  WScript.Echo text
  If reportFile = "" Then Exit Sub
  With CreateObject("Scripting.FileSystemObject").OpenTextFile(reportFile, 8)
    .WriteLine text
    .Close
  End With
End Sub

' ---- A trial and its lines

' From here on each of these assumptions needs a line, or has failed.
Sub Begin(listOfIds)
  ids = Split(listOfIds, " ")
  decided.RemoveAll
End Sub

' The end of a trial. An error that nobody expected ends a trial early: what it has not decided then has failed.
Sub Finish(number, text)
  Dim id, reason
  reason = "the trial broke off"
  If number <> 0 Then reason = reason & ": " & Shown(number, text)
  RollBackQuietly con
  For Each id In ids
    If Not decided.Exists(id) Then Failed id, "", reason
  Next
End Sub

Sub Decide(id, holds, text, seen)
  If holds Then
    passedCount = passedCount + 1
    WriteVerdict id, "passed", text, seen
  Else
    Failed id, text, seen
  End If
End Sub

Sub Failed(id, text, seen)
  failedCount = failedCount + 1
  WriteVerdict id, "failed", text, seen
End Sub

Sub NotTried(id, text, reason)
  notTriedCount = notTriedCount + 1
  WriteVerdict id, "not tried", text, reason
End Sub

Sub WriteVerdict(id, verdict, text, seen)
  Dim written
  decided(id) = True
  written = Left(id & "    ", 5) & Left(verdict & "          ", 11) & text
  If pass <> "" Then written = written & " [" & pass & "]"
  If seen <> "" Then written = written & " - " & seen
  Say written
End Sub

Function Shown(number, text)
  Shown = text
  If number < 0 Then Shown = Hex(number) & " " & text
  If number > 0 Then Shown = number & " " & text
  If number = 0 Then Shown = "no error"
End Function

' ---- Statements

' Runs a statement without rows as the component does; True when it fails, with the error in errNumber and its neighbours.
Function Fails(statement)
  Fails = FailsOn(con, statement, CmdText + NoRecords)
End Function

Function FailsOn(connection, statement, options)
  On Error Resume Next
  connection.Errors.Clear
  Err.Clear
  connection.Execute statement, , options
  errNumber = Err.Number
  errText = Err.Description
  ReadServersError connection
  FailsOn = errNumber <> 0
End Function

' What the server itself said of the last error.
Sub ReadServersError(connection)
  On Error Resume Next
  errNative = 0
  errState = ""
  If errNumber = 0 Then Exit Sub
  errNative = connection.Errors(0).NativeError
  errState = connection.Errors(0).SQLState
End Sub

Function LastError()
  LastError = Shown(errNumber, errText)
  If errNative <> 0 Then LastError = LastError & " (" & errNative & ", " & errState & ")"
End Function

Sub Run(statement)
  con.Execute statement, , CmdText + NoRecords
End Sub

Sub Ignore(statement)
  FailsOn con, statement, CmdText + NoRecords
End Sub

' RollbackTrans where it may fail; its error is in errNumber then.
Sub RollBackQuietly(connection)
  On Error Resume Next
  connection.RollbackTrans
  errNumber = Err.Number
  errText = Err.Description
End Sub

Function Opened(source, location, cursor, lock, mostRows)
  Dim rows
  Set rows = CreateObject("ADODB.Recordset")
  If location <> 0 Then rows.CursorLocation = location
  rows.MaxRecords = mostRows
  rows.Open source, con, cursor, lock, CmdText
  Set Opened = rows
End Function

' The first field of the first row; Empty when there is no row.
Function FirstValue(statement)
  FirstValue = FirstValueOf(con, statement)
End Function

Function FirstValueOf(connection, statement)
  Dim rows
  Set rows = connection.Execute(statement, , CmdText)
  If Not rows.EOF Then FirstValueOf = rows.Collect(0)
  rows.Close
End Function

Function Count(tableAndCondition)
  Count = CLng(FirstValue("select count(*) from " & tableAndCondition))
End Function

' ---- What is tried on every kind of connection

Sub TryOnEveryConnection(name)
  pass = name
  On Error Resume Next
  Begin "C1 C2" : TryConnection : Finish Err.Number, Err.Description
  Err.Clear
  Begin "C3" : TryDates : Finish Err.Number, Err.Description
  Err.Clear
  Begin "R1 R2 R3 R4 R5 R6" : TryReading : Finish Err.Number, Err.Description
  Err.Clear
  Begin "R7 R8 R9 R10" : TryUnread : Finish Err.Number, Err.Description
  Err.Clear
  Begin "R11 R12" : TryAcrossCommit : Finish Err.Number, Err.Description
  Err.Clear
  Begin "N1 N2 N3 N4" : TryAddingAtOnce : Finish Err.Number, Err.Description
  Err.Clear
  Begin "N5 N6 N7 N8" : TryBatches : Finish Err.Number, Err.Description
  Err.Clear
  Begin "N9" : TryFailingBatch : Finish Err.Number, Err.Description
  Err.Clear
  Begin "U1 U2 U3 U4" : TryChanging : Finish Err.Number, Err.Description
  Err.Clear
  Begin "E1 E2 E3 E4 E5 E6" : TryErrors : Finish Err.Number, Err.Description
  Err.Clear
  Begin "T1 T2 T3" : TryTransactions : Finish Err.Number, Err.Description
  pass = ""
End Sub

' What no setting of the connection changes.
Sub TryOnce()
  On Error Resume Next
  Begin "S1 S2 S3 S5 S6 S7 S8" : TryStatements : Finish Err.Number, Err.Description
  Err.Clear
  Begin "N10 N11" : TryOtherBatches : Finish Err.Number, Err.Description
  Err.Clear
  Begin "T4 T5 T6" : TryTimeouts : Finish Err.Number, Err.Description
  Err.Clear
  Begin "T7 T8" : TryDeadlock : Finish Err.Number, Err.Description
  Err.Clear
  Begin "T9 T10" : TryKill : Finish Err.Number, Err.Description
  Err.Clear
  Begin "T11" : TryRollbackInTrigger : Finish Err.Number, Err.Description
End Sub

Sub TryConnection()
  Dim before
  Decide "C1", con.State = IsOpen, "a host's connection opens and says so", ""
  before = con.CommandTimeout
  con.CommandTimeout = 0
  Decide "C2", before = 30 And con.CommandTimeout = 0, "the time-out is 30 seconds and can be taken off", before & " s"
  con.CommandTimeout = before
End Sub

' Dates as the component and the stand-ins write them, whatever the log-in's language.
Sub TryDates()
  Dim text
  Run "insert into tryDates (d) values ('20240315 16:05:09')"
  text = FirstValue("select convert(varchar(30), d, 120) from tryDates")
  Run "delete from tryDates"
  Decide "C3", text = "2024-03-15 16:05:09" And Count("mosGoodsRequestHeader where GRHrequestdate > '20240314'") > 0, _
         "'yyyymmdd' and 'yyyymmdd hh:nn:ss' are read alike in every language", text
End Sub

Sub TryReading()
  Dim rows, block, raised
  Set rows = con.Execute("select ShopID, shopname from aShops order by ShopID", , CmdText)
  Decide "R1", rows.State = IsOpen And (clientSide Or rows.RecordCount = -1), "Execute gives open rows to read forward", _
         "cursor " & rows.CursorType & ", count " & rows.RecordCount
  block = rows.GetRows(2)
  Decide "R2", UBound(block, 1) = 1 And UBound(block, 2) = 1 And rows.Collect("SHOPNAME") = "Mill Lane Bakery" _
         And rows.Fields.Count = 2 And LCase(rows.Fields.Item(1).Name) = "shopname", _
         "GetRows gives (field, record) and moves on; fields go by name in any case, and by number", ""
  rows.MoveNext
  On Error Resume Next
  block = rows.GetRows(1)
  raised = Err.Number
  On Error GoTo 0
  Decide "R3", rows.EOF And (raised And &HFFFF&) = ErrNoCurrentRecord, "at the end EOF is true and GetRows fails with 3021", _
         Shown(raised, "")
  rows.Close
  TryTypes
  Set rows = Opened("select GRHrequestID from mosGoodsRequestHeader where grhshopid=1", 0, KeysetCursor, LockReadOnly, 0)
  Decide "R5", rows.RecordCount = Count("mosGoodsRequestHeader where GRHshopID=1"), _
         "a keyset to read has an exact record count", rows.RecordCount & " rows"
  rows.Close
  ' The table has no unique index: there the server makes a cursor of another kind.
  Set rows = Opened("select functionrights from louserrights where userid = 1 and interfaceid = 1503 and companyid = 1", 0, _
                    KeysetCursor, LockOptimistic, 0)
  Decide "R6", rows.RecordCount = 1, "an updatable keyset without a unique index has an exact record count", _
         "cursor " & rows.CursorType & ", count " & rows.RecordCount
  rows.Close
End Sub

Sub TryTypes()
  Dim rows, types, i
  Set rows = con.Execute("select GRHrequestID, GRDDetailid, GRHcancel, GRHrequestno, GRHrequestdate, GRDgoodQty, GRDbadQty," & _
                         " GRHrequesttype from mosGoodsRequestHeader, mosGoodsRequestDetail where GRHrequestID=13" & _
                         " and GRDrequestID=13 and GRHshopID=1 and GRDshopID=1 and GRDDetailid=1", , CmdText)
  For i = 0 To 7
    types = types & " " & VarType(rows.Collect(i))
  Next
  rows.Close
  Decide "R4", types = " 3 2 11 8 7 14 1 8", _
         "int, smallint, bit, varchar, datetime, decimal, null and char come as Long, Integer, Boolean, String, Date, Decimal, " & _
         "Null and String", "VarType" & types
End Sub

Sub TryUnread()
  Dim rows, text
  ' Outside of a transaction a second, hidden log-in answers.
  Set rows = con.Execute("select * from aItem", , CmdText)
  Decide "R7", Count("aShops") = 3 And Not rows.EOF, "outside a transaction another statement runs beside unread rows", ""
  rows.Close
  ' Client-side rows are all read when they are there.
  con.BeginTrans
  Set rows = con.Execute("select * from aItem", , CmdText)
  FailsOn con, "select count(*) from aShops", CmdText
  text = LastError()
  If clientSide Then
    Decide "R8", errNumber = 0, "inside a transaction client-side rows are in nobody's way", text
  Else
    Decide "R8", errNumber = ErrFailed, "inside a transaction a statement beside unread rows is refused with 80004005", text
  End If
  rows.Close
  Decide "R9", Count("aShops") = 3, "closing unread rows sets the connection free, inside a transaction too", ""
  con.CommitTrans
  Set rows = con.Execute("select * from aItem", , CmdText)
  TryBeginTrans
  text = LastError()
  Decide "R10", (errNumber = 0) = clientSide, "BeginTrans over unread server-side rows is refused, over client-side ones not", text
  rows.Close
End Sub

Sub TryBeginTrans()
  On Error Resume Next
  con.BeginTrans
  errNumber = Err.Number
  errText = Err.Description
  ReadServersError con
  If errNumber = 0 Then con.RollbackTrans
End Sub

' The item list of the lookup stays open while requests are saved.
Sub TryAcrossCommit()
  Dim rows, code, seen
  con.BeginTrans
  Set rows = Opened("select itemcode from aItem order by itemid", UseClient, StaticCursor, LockReadOnly, 0)
  con.CommitTrans
  rows.MoveFirst
  rows.Move 1
  code = rows.Collect("itemcode")
  rows.Close
  Decide "R11", code <> "", "a client-side static recordset lives on after a commit, and closes", code
  If clientSide Then
    NotTried "R12", "a server-side recordset dies with the commit", "this connection's cursors are on the client"
    Exit Sub
  End If
  con.BeginTrans
  Set rows = Opened("select itemcode from aItem order by itemid", UseServer, StaticCursor, LockReadOnly, 0)
  con.CommitTrans
  seen = ErrorOfTouching(rows)
  Decide "R12", seen <> "", "a server-side recordset dies with the commit", seen
End Sub

Function ErrorOfTouching(rows)
  On Error Resume Next
  rows.MoveFirst
  If Err.Number <> 0 Then ErrorOfTouching = Shown(Err.Number, Err.Description)
  Err.Clear
  rows.Close
  If Err.Number <> 0 Then ErrorOfTouching = ErrorOfTouching & "; Close: " & Shown(Err.Number, Err.Description)
End Function

' ---- Adding rows

' As the component opens a recordset to add rows to.
Function OpenedForAdding(source, lock)
  Set OpenedForAdding = Opened(source, UseClient, StaticCursor, lock, 1)
End Function

Sub TryAddingAtOnce()
  Dim header, links, affected
  ForgetTrialRequest
  con.BeginTrans
  Set header = OpenedForAdding("select * from mosGoodsRequestHeader", LockOptimistic)
  Decide "N1", header.RecordCount <= 1, "opening for adding fetches one row of the table", header.RecordCount & " rows"
  ' The limit is that recordset's: other statements of the connection change all their rows.
  con.Execute "update aShops set cityid=cityid", affected, CmdText + NoRecords
  Decide "N2", affected = 3, "its MaxRecords limits no other statement", affected & " rows changed"
  header.AddNew Array("grhrequestid", "grhrequestno", "grhrequestdate", "grhshopid", "grhremarks", "GRHrequestTime", _
                      "grhTransFinished"), _
                Array(CLng(TrialRequest), "GRTRY/1", "2024/03/15", CLng(Shop), Null, FirstValue("select CURRENT_TIMESTAMP"), 0)
  header.Close
  con.CommitTrans
  Decide "N3", Count("mosGoodsRequestHeader where GRHrequestID=" & TrialRequest & " and GRHrequestdate='20240315'" & _
                     " and GRHremarks is null") = 1, _
         "AddNew with names and values stores the row at once; '2024/03/15' is that day, Null is null", ""
  Set links = OpenedForAdding("select * from mosRequestInvDetail", LockOptimistic)
  links.AddNew Array("reqcompanyid", "reqdid", "reqddetailid", "reqinvdshopid", "reqinvdinvoiceid", "reqReexportID"), _
               Array(CLng(Company), CLng(TrialRequest), CInt(1), CLng(Shop), CLng(1001), Null)
  links.Close
  Decide "N4", Count("mosRequestInvDetail where reqdid=" & TrialRequest & " and reqReexportID is null") = 1, _
         "so does it in a table without a key", ""
  ForgetTrialRequest
End Sub

Sub ForgetTrialRequest()
  Run "delete from mosGoodsRequestDetail where GRDrequestID>=" & TrialRequest
  Run "delete from mosGoodsRequestHeader where GRHrequestID>=" & TrialRequest
  Run "delete from mosRequestInvDetail where reqdid>=" & TrialRequest
  Run "delete from tryTriggered"
End Sub

Sub TryBatches()
  TryBatch "N5", "no trigger", 1
  TryBatch "N6", "a trigger that writes three rows and counts", 1
  TryBatch "N7", "a trigger that writes three rows with nocount", 1
  TryBatch "N8", "no trigger", 0
  TryBatch "N8", "a trigger that writes three rows and counts", 0
  TryBatch "N8", "a trigger that writes three rows with nocount", 0
End Sub

' Two lines of a request in one batch. MaxRecords 1 is what the component sets; if only 0 passes under a trigger, it must not.
Sub TryBatch(id, trigger, mostRows)
  Dim text, wrong
  text = "two lines go in one batch, MaxRecords " & mostRows & ", " & trigger
  If Not SetsTrigger(trigger, "mosGoodsRequestDetail", "insert") Then
    NotTried id, text, NoTriggers
    Exit Sub
  End If
  wrong = WrongWithBatch(UseClient, StaticCursor, mostRows, trigger <> "no trigger", CLng(2))
  TakeTriggerAway trigger
  Decide id, wrong = "", text, wrong
End Sub

' What is wrong after adding two lines in a batch; empty when all is stored, with the trigger's rows. The second line's number is
' given: 1 makes it fail.
Function WrongWithBatch(location, cursor, mostRows, triggered, secondNumber)
  ForgetTrialRequest
  con.BeginTrans
  WrongWithBatch = ErrorOfBatch(location, cursor, mostRows, secondNumber)
  If WrongWithBatch <> "" Then
    RollBackQuietly con
    Exit Function
  End If
  con.CommitTrans
  If Quantity(1) <> "0.289" Or Quantity(2) <> "4.350" Then WrongWithBatch = "stored " & Quantity(1) & " and " & Quantity(2)
  If triggered And Count("tryTriggered") <> 6 Then
    WrongWithBatch = WrongWithBatch & " the trigger wrote " & Count("tryTriggered") & " rows of 6"
  End If
  ForgetTrialRequest
End Function

Function Quantity(number)
  Quantity = FirstValue("select cast(cast(GRDgoodQty as decimal(18,3)) as varchar(20)) from mosGoodsRequestDetail" & _
                        " where GRDrequestID=" & TrialRequest & " and GRDDetailid=" & number)
End Function

Function ErrorOfBatch(location, cursor, mostRows, secondNumber)
  Dim rows, names, doing
  names = Array("GRDDetailid", "GRDshopID", "GRDrequestID", "GRDitemID", "grdreqcomments", "GRDgoodQty", "grdexpectremarks")
  On Error Resume Next
  doing = "Open"
  Set rows = Opened("select * from mosGoodsRequestDetail where GRDshopID=1", location, cursor, LockBatch, mostRows)
  If Err.Number = 0 Then doing = "AddNew"
  If Err.Number = 0 Then rows.AddNew names, Array(CInt(1), CLng(Shop), CLng(TrialRequest), CLng(4), "", CDbl(0.289), "")
  If Err.Number = 0 Then doing = "the second AddNew"
  If Err.Number = 0 Then
    rows.AddNew names, Array(CInt(secondNumber), CLng(Shop), CLng(TrialRequest), CLng(5), "", CDbl(4.35), "")
  End If
  If Err.Number = 0 Then doing = "UpdateBatch"
  If Err.Number = 0 Then rows.UpdateBatch
  rowsError = Err.Number
  If rowsError <> 0 Then ErrorOfBatch = doing & ": " & Shown(rowsError, Err.Description)
  Err.Clear
  rows.CancelBatch
  rows.Close
End Function

' A batch whose second row breaks the key must fail as a whole once it is rolled back.
Sub TryFailingBatch()
  Dim wrong
  wrong = WrongWithBatch(UseClient, StaticCursor, 1, False, 1)
  Decide "N9", wrong <> "" And Count("mosGoodsRequestDetail where GRDrequestID=" & TrialRequest) = 0, _
         "a line that breaks the key makes UpdateBatch fail, and the rollback takes the other one back", wrong
End Sub

' Cursors that the component does not use for adding, and why.
Sub TryOtherBatches()
  Dim most, wrong, refused
  For Each most In Array(0, 1)
    wrong = WrongWithBatch(UseServer, DynamicCursor, most, False, 2)
    Decide "N10", InStr(wrong, "the second AddNew") = 1 And rowsError = ErrRowsNotReleased, _
           "a dynamic cursor on the server refuses the second line, MaxRecords " & most, wrong
    For Each refused In Array(KeysetCursor, StaticCursor)
      wrong = WrongWithBatch(UseServer, refused, most, False, 2)
      Decide "N11", InStr(wrong, "stored") = 0, "cursor " & refused & " on the server stores both lines of a batch or fails," & _
             " MaxRecords " & most, wrong
    Next
  Next
End Sub

' Makes the trigger of that kind; False when there can be none.
Function SetsTrigger(kind, table, change)
  Dim quiet
  SetsTrigger = kind = "no trigger"
  If SetsTrigger Or embedded Then Exit Function
  If InStr(kind, "nocount") > 0 Then quiet = "set nocount on "
  Run "create trigger tryTrigger on " & table & " for " & change & " as begin " & quiet & _
      "insert into tryTriggered select n from tryThree end"
  SetsTrigger = True
End Function

Sub TakeTriggerAway(kind)
  If kind <> "no trigger" Then Ignore "drop trigger tryTrigger"
End Sub

' ---- Changing a header

Sub TryChanging()
  TryChange "U1", "no trigger", UseServer
  TryChange "U2", "a trigger that writes three rows and counts", UseServer
  TryChange "U3", "a trigger that writes three rows with nocount", UseServer
  TryChange "U4", "a trigger that writes three rows and counts", UseClient
End Sub

' The editor's and the cancellation's way to change a header.
Sub TryChange(id, trigger, location)
  Dim text, wrong, stored
  text = "a keyset on the server changes a header, " & trigger
  If location = UseClient Then text = "a client-side recordset changes the header, or fails with 80040E38 and changes nothing, " & trigger
  If Not SetsTrigger(trigger, "mosGoodsRequestHeader", "update") Then
    NotTried id, text, NoTriggers
    Exit Sub
  End If
  ForgetTrialRequest
  Run "insert into mosGoodsRequestHeader (GRHshopID, GRHrequestID, GRHremarks) values (" & Shop & ", " & TrialRequest & ", 'old')"
  con.BeginTrans
  wrong = ErrorOfChange(location)
  If wrong = "" Then con.CommitTrans Else RollBackQuietly con
  TakeTriggerAway trigger
  stored = FirstValue("select GRHremarks from mosGoodsRequestHeader where GRHrequestID=" & TrialRequest)
  ForgetTrialRequest
  If location = UseServer Then Decide id, wrong = "" And stored = "new", text, Trim(stored & " " & wrong)
  If location = UseClient Then
    Decide id, (wrong = "" And stored = "new") Or (rowsError = ErrRowNotFound And stored = "old"), text, _
           Trim(stored & " " & wrong)
  End If
End Sub

Function ErrorOfChange(location)
  Dim header
  On Error Resume Next
  Set header = Opened("select * from mosGoodsRequestHeader where grhrequestid=" & TrialRequest & " and grhshopid=" & Shop, _
                      location, KeysetCursor, LockOptimistic, 0)
  header.Collect("grhremarks") = "new"
  header.Collect("grhcancel") = CLng(1)
  If Err.Number = 0 Then header.Update
  rowsError = Err.Number
  If rowsError <> 0 Then ErrorOfChange = Shown(rowsError, Err.Description)
  Err.Clear
  header.CancelUpdate
  header.Close
End Function

' ---- Errors

Sub TryErrors()
  Dim batch
  batch = "update aShops set cityid=cityid where ShopID=1 insert into tryTwo (id, n) values (1, 0)"
  FailsOn con, batch, CmdText + NoRecords
  Decide "E1", errNumber = ErrIntegrity, "with adExecuteNoRecords an error after a first count is raised", LastError()
  Decide "E2", errNative = NativeDuplicate And errState <> "", "Errors(0) has the server's number and the SQL state", LastError()
  TryHiddenError batch
  TryNextRecordset
End Sub

Sub TryHiddenError(batch)
  Dim rows, i
  FailsOn con, batch, CmdText
  Decide "E3", errNumber = 0, "without it the error stays hidden", LastError()
  If errNumber <> 0 Then
    NotTried "E4", "until NextRecordset comes to it", "it was not hidden"
    Exit Sub
  End If
  Set rows = con.Execute(batch, , CmdText)
  On Error Resume Next
  For i = 1 To 5
    If Err.Number = 0 Then Set rows = rows.NextRecordset
  Next
  Decide "E4", Err.Number = ErrIntegrity, "until NextRecordset comes to it", Shown(Err.Number, Err.Description)
End Sub

Sub TryNextRecordset()
  Dim rows, hasRows
  Set rows = con.Execute("update aShops set cityid=cityid where ShopID=1 select count(*) from aShops", , CmdText)
  hasRows = (rows.State And IsOpen) <> 0
  Set rows = rows.NextRecordset
  Decide "E5", Not hasRows And (rows.State And IsOpen) <> 0 And rows.Collect(0) = 3, "rows after a count come with NextRecordset", ""
  Set rows = rows.NextRecordset
  Decide "E6", rows Is Nothing, "after the last result NextRecordset gives Nothing", ""
End Sub

' ---- Transactions

Sub TryTransactions()
  con.BeginTrans
  Run "insert into tryTwo (id, n) values (50, 0)"
  con.RollbackTrans
  con.BeginTrans
  Run "insert into tryTwo (id, n) values (51, 0)"
  con.CommitTrans
  Decide "T1", Count("tryTwo where id in (50, 51)") = 1 And Count("tryTwo where id = 51") = 1, _
         "RollbackTrans takes back, CommitTrans keeps", ""
  Run "delete from tryTwo where id >= 50"
  RollBackQuietly con
  Decide "T2", errNumber <> 0, "RollbackTrans without BeginTrans is an error", Shown(errNumber, errText)
  ' What a server does of itself after a grave error.
  con.BeginTrans
  Run "insert into tryTwo (id, n) values (52, 0)"
  FailsOn con, "rollback transaction", CmdText + NoRecords
  RollBackQuietly con
  Decide "T3", StartsAfresh(53) And Count("tryTwo where id >= 50") = 0, _
         "after a rollback by the server RollbackTrans fails or is silent, and the next transaction begins afresh", _
         "RollbackTrans: " & Shown(errNumber, errText)
  Run "delete from tryTwo where id >= 50"
End Sub

' Whether a new transaction on the connection holds what it writes and gives it back.
Function StartsAfresh(id)
  Dim number, text
  number = errNumber
  text = errText
  con.BeginTrans
  Run "insert into tryTwo (id, n) values (" & id & ", 0)"
  con.RollbackTrans
  StartsAfresh = Count("tryTwo where id = " & id) = 0
  errNumber = number
  errText = text
End Function

Sub TryTimeouts()
  Dim other, before
  Set other = NewConnection(False, False)
  other.BeginTrans
  other.Execute "update tryTwo set n = 1 where id = 1", , CmdText + NoRecords
  before = con.CommandTimeout
  con.CommandTimeout = 1
  Fails "update tryTwo set n = 2 where id = 1"
  Decide "T4", errNumber = ErrTimeout, "a statement that waits too long for a lock ends with 80040E31", LastError()
  If embedded Then
    NotTried "T5", "inside a transaction, too; RollbackTrans works then", OneWriter
    NotTried "T6", "a lock time-out is 1222 and leaves the transaction open", "the embedded engine has no lock time-out of its own"
  Else
    TryTimeoutInside
  End If
  con.CommandTimeout = before
  other.RollbackTrans
  other.Close
End Sub

Sub TryTimeoutInside()
  Dim seen
  con.BeginTrans
  Run "insert into tryTwo (id, n) values (60, 0)"
  Fails "update tryTwo set n = 2 where id = 1"
  seen = LastError()
  Decide "T5", errNumber = ErrTimeout And RollsBack(60), "inside a transaction, too; RollbackTrans works then", seen
  con.BeginTrans
  Run "set lock_timeout 300"
  Run "insert into tryTwo (id, n) values (61, 0)"
  Fails "update tryTwo set n = 2 where id = 1"
  seen = LastError()
  Decide "T6", errNative = NativeLockTimeout And RollsBack(61), "a lock time-out is 1222 and leaves the transaction open", seen
  Run "set lock_timeout -1"
End Sub

' RollbackTrans succeeds and takes the row back.
Function RollsBack(id)
  RollBackQuietly con
  RollsBack = errNumber = 0
  If RollsBack Then RollsBack = Count("tryTwo where id = " & id) = 0
End Function

' This connection holds row 1 and wants row 2, the other one the reverse; this one volunteers to be the victim.
Sub TryDeadlock()
  Dim other, seen, rolledBack
  If embedded Then
    NotTried "T7", "a deadlock's victim gets 1205", OneWriter
    NotTried "T8", "the victim is rolled back already", OneWriter
    Exit Sub
  End If
  Set other = NewConnection(False, False)
  other.BeginTrans
  other.Execute "update tryTwo set n = 1 where id = 2", , CmdText + NoRecords
  Run "set deadlock_priority low"
  con.BeginTrans
  Run "update tryTwo set n = 1 where id = 1"
  other.Execute "update tryTwo set n = 1 where id = 1", , CmdText + NoRecords + Async
  Fails "update tryTwo set n = 2 where id = 2"
  seen = LastError()
  Decide "T7", errNative = NativeDeadlock, "a deadlock's victim gets 1205", seen
  RollBackQuietly con
  rolledBack = "RollbackTrans: " & Shown(errNumber, errText)
  Do While (other.State And IsExecuting) <> 0
    WScript.Sleep 50
  Loop
  other.RollbackTrans
  other.Close
  Decide "T8", StartsAfresh(70) And Count("tryTwo where n <> 0") = 0, _
         "the victim is rolled back already: RollbackTrans fails or is silent, the next transaction begins afresh", rolledBack
  Run "set deadlock_priority normal"
End Sub

Sub TryKill()
  Dim victim, text, raised, recognised, seen
  text = "a killed connection fails, RollbackTrans fails or is silent, and nothing is stored"
  recognised = "its error has an SQL state of 08 or a number of a broken connection"
  If embedded Then
    NotTried "T9", text, "the embedded engine has no KILL"
    NotTried "T10", recognised, "the embedded engine has no KILL"
    Exit Sub
  End If
  Set victim = NewConnection(False, False)
  victim.BeginTrans
  victim.Execute "insert into tryTwo (id, n) values (80, 0)", , CmdText + NoRecords
  If Fails("kill " & FirstValueOf(victim, "select @@spid")) Then
    seen = "the log-in may not kill: " & LastError()
    victim.RollbackTrans
    NotTried "T9", text, seen
    NotTried "T10", recognised, seen
    Exit Sub
  End If
  WScript.Sleep 1000
  FailsOn victim, "insert into tryTwo (id, n) values (81, 0)", CmdText + NoRecords
  raised = errNumber
  seen = LastError()
  Decide "T10", Left(errState, 2) = "08" Or InStr(BrokenConnection, " " & errNative & " ") > 0, recognised, seen
  RollBackQuietly victim
  Decide "T9", raised <> 0 And Count("tryTwo where id >= 80") = 0, text, _
         seen & "; RollbackTrans: " & Shown(errNumber, errText)
End Sub

Sub TryRollbackInTrigger()
  Dim text, seen, native
  text = "a trigger that rolls back is an error, and takes the whole transaction back"
  If embedded Then
    NotTried "T11", text, NoTriggers
    Exit Sub
  End If
  ForgetTrialRequest
  Run "create trigger tryTrigger on mosGoodsRequestDetail for insert as begin rollback transaction end"
  con.BeginTrans
  Run "insert into tryTwo (id, n) values (90, 0)"
  Fails "insert into mosGoodsRequestDetail (GRDDetailid, GRDshopID, GRDrequestID, GRDitemID) values (1, 1, " & TrialRequest & ", 4)"
  seen = LastError()
  native = errNative
  RollBackQuietly con
  Ignore "drop trigger tryTrigger"
  Decide "T11", native = NativeEndedInTrigger And Count("tryTwo where id >= 90") = 0 _
         And Count("mosGoodsRequestDetail where GRDrequestID=" & TrialRequest) = 0, text, seen
End Sub

' ---- Statements with something odd about them, as the component sends them

Sub TryStatements()
  Dim rows, found
  Decide "S1", FirstValue("SELECT Prefix FROM aPrefix WHERE InterfaceID = 1503AND FinancialId =" & _
                          " (Select FinancialId from aFinancialYear where CurFinancialYear = 1) and shopid=1") = "GR24/", _
         "a number may touch the next word: 1503AND", ""
  Set rows = Opened(" spgodownitemnotinshop 1, '',1", UseClient, StaticCursor, LockReadOnly, 0)
  found = rows.RecordCount
  rows.Close
  Set rows = con.Execute("spgodownitemnotinshop 1,' and a.itemcode = ''none such''',1", , CmdText)
  Decide "S2", found > 0 And rows.EOF, "a procedure runs without exec, opened and executed", found & " items"
  rows.Close
  Set rows = Opened("select a.ihInvoiceNo,null ReExportNo,a.ihInvoiceID from losinvoiceheader a union all" & _
                    " select null,a.rehExportNo, a.rehExportID from losExportHeader a", 0, ForwardCursor, LockReadOnly, 0)
  found = UBound(rows.GetRows(-1), 2) + 1
  rows.Close
  Decide "S3", found = Count("losinvoiceheader") + Count("losExportHeader"), "a union takes its types from the first text", found & " rows"
  Decide "S5", FirstValue("select count(GRHSHOPID) + count(grhshopid) from MOSGOODSREQUESTHEADER") > 0, _
         "names of tables and columns go in any case", ""
  Decide "S6", Count("(select itemid from vwInquiryShopStock group by itemid having sum(stock)< = 0) s") >= 0 _
         And Not Fails("delete mosGoodsRequestdetail where grdrequestid=" & TrialRequest), _
         "< = with a blank, delete without from", LastError()
  TryNumbering
End Sub

Function GreatestNumber()
  GreatestNumber = "Select isnull(max(convert(int,right(GRHrequestNo,len(GRHrequestNo)-5))),0) from mosGoodsRequestHeader" & _
                   " where GRHshopid = 1 and len(GRHrequestNo)>len('GR24/') and " & _
                   " isnumeric(isnull(right(GRHrequestNo,len(GRHrequestNo)-5),0)) =1" & _
                   " and substring(GRHrequestNo,1,len('GR24/'))='GR24/'"
End Function

Sub TryNumbering()
  Dim greatest
  greatest = FirstValue(GreatestNumber())
  Decide "S7", greatest = 20, "the greatest number of the year is found among texts of all kinds", greatest
  Run "insert into mosGoodsRequestHeader (GRHshopID, GRHrequestID, GRHrequestno) values (1, " & TrialRequest & ", 'GR24/1e2')"
  FailsOn con, GreatestNumber(), CmdText
  Decide "S8", errNumber <> 0, "a number that isnumeric takes and convert does not stops the numbering: known, and stated", LastError()
  ForgetTrialRequest
End Sub

' The lines' table with a row identifier and without. The last trial, for the table is made again.
Sub TryReplication()
  On Error Resume Next
  Begin "S4"
  TryRowIdentifier
  Finish Err.Number, Err.Description
End Sub

Sub TryRowIdentifier()
  Dim query, before
  query = "select count(*) from syscolumns where colstat=2 and id=object_id('mosgoodsrequestdetail')"
  before = FirstValue(query)
  If Not RunsScript("replication.sql") Then
    Failed "S4", "the tables for replication can be made", errText
    Exit Sub
  End If
  Decide "S4", before = 0 And FirstValue(query) > 0, "colstat=2 tells a table with a row identifier", _
         before & " before, " & FirstValue(query) & " after"
End Sub

' ---- The component itself

Sub TryRoad()
  On Error Resume Next
  Begin "P1 P2"
  TryComponent
  Finish Err.Number, Err.Description
End Sub

Sub TryComponent()
  Dim request
  Set request = Component()
  If request Is Nothing Then
    NotTried "P1", "the component takes the connection", "tq8v4461.dll is not registered: " & errText
    NotTried "P2", "a request goes from the register into the tables", "tq8v4461.dll is not registered"
    Exit Sub
  End If
  If Not Reconnects(road = "/road:client", True) Then Exit Sub
  Set request.adocon = con
  request.strMsgboxCaption = "Trial"
  request.intCompanyID = Company
  request.intUserID = User
  request.intShopID = Shop
  request.dtProcessDate = DateSerial(2024, 3, 15)
  Decide "P1", request.adocon Is con And request.intShopID = Shop, "the component takes the connection and the session", ""
  If road = "" Then
    NotTried "P2", "a request goes from the register into the tables", "somebody must raise one: run with /road"
  Else
    TryRequest request
  End If
  Set request = Nothing
End Sub

Function Component()
  On Error Resume Next
  Set Component = Nothing
  Set Component = CreateObject("tq8v4461.clsGoodsRequest")
  errText = Err.Description
End Function

Sub TryRequest(request)
  Dim before, id, wrong
  ' The stand-ins of the suite's helpers make these two when they first need them.
  made("drop table smpUserAudit") = True
  made("drop table smpGridSettings") = True
  before = FirstValue("select max(GRHrequestID) from mosGoodsRequestHeader where GRHshopID=1")
  Say "The register opens. Raise one request there (New, No, right click, Add, two items, OK) and close the register."
  request.Show
  id = FirstValue("select max(GRHrequestID) from mosGoodsRequestHeader where GRHshopID=1")
  If id = before Then
    NotTried "P2", "a request goes from the register into the tables", "no request was raised"
    Exit Sub
  End If
  wrong = WrongWithRequest(id, before)
  Decide "P2", wrong = "", "a request goes from the register into the tables", "request " & id & wrong
End Sub

Function WrongWithRequest(id, before)
  Dim lines, own
  own = "GRDshopID=1 and GRDrequestID=" & id
  lines = Count("mosGoodsRequestDetail where " & own)
  If id <> before + 1 Then WrongWithRequest = ", not the next id"
  If lines < 2 Then WrongWithRequest = WrongWithRequest & ", " & lines & " lines of two or more"
  If Count("mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID=" & id & " and GRHNoofDetails=" & lines & _
           " and GRHrequestdate='20240315' and GRHrecaddUser='Nora Halvard' and GRHrequestTime is not null") <> 1 Then
    WrongWithRequest = WrongWithRequest & ", the header is not as entered"
  End If
  If Count("aShopItemDetail where isnull(RequestRaised,0)<>1 and ItemID in (select GRDitemID from mosGoodsRequestDetail where " & _
           own & ")") <> 0 Then WrongWithRequest = WrongWithRequest & ", items are not marked as requested"
End Function
