form: frmMaster "Goods Request to HQ"
> # A click on a heading sorts and turns round; what was selected stays selected.
> row flexMaster 8
> heading flexMaster 3
> get flexMaster.Row
value: 15
> get cboColNames.Text
value: "Remarks"
> show
text: ┌─ Goods Request to HQ ───────────────────────────────────────────────────────────────────────────────────┐
text: │ »  Request ID │ Request No │ Request Date │ Remarks ▲                  │ Cancelled │ Finished           │
text: │    ───────────┼────────────┼──────────────┼────────────────────────────┼───────────┼─────────           │
text: │    25         │ GR24/17    │ 12/03/2024   │                            │ No        │ No                 │
text: │    27         │ GR24/19    │ 15/03/2024   │ Barrel and loose goods     │ No        │ No                 │
text: │    26         │ GR24/18    │ 14/03/2024   │ Café corner                │ No        │ No                 │
text: │    18         │ GR24/10    │ 13/02/2024   │ Customer glasses           │ No        │ No                 │
text: │   !16         │ GR24/8     │ 05/02/2024   │ Customer order, cancelled… │ Yes       │ No                 │
text: │    19         │ GR24/11    │ 16/02/2024   │ Hammers and pliers         │ No        │ No                 │
text: │    24         │ GR24/16    │ 12/02/2024   │ Mr O'Dowd's paper slip, t… │ No        │ No                 │
text: │   !28         │ GR24/20    │ 15/03/2024   │ Opened by mistake          │ Yes       │ No                 │
text: │    14         │ GR24/6     │ 22/01/2024   │ Order from the Porto supp… │ No        │ Yes                │
text: │    23         │ GR24/15    │ 05/03/2024   │ Please send this order to… │ No        │ No                 │
text: │    22         │ GR24/14    │ 01/03/2024   │ Quarter order              │ No        │ No                 │
text: │   !17         │ GR24/9     │ 09/02/2024   │ Spring cleaning            │ Yes       │ Yes                │
text: │    21         │ GR24/13    │ 23/02/2024   │ Stationery, small order    │ No        │ No                 │
text: │    15         │ GR24/7     │ 29/01/2024   │ Towels for the hotel       │ No        │ No                 │
text: │  > 20         │ GR24/12    │ 20/02/2024   │ Toys for the fair          │ No        │ No                 │
text: │    ... 1 more                                                                                           │
text: │ ┌─ Browse ────────────────────────────────────────────────────────────────────────────────────────────┐ │
text: │ │  [Remarks        v]    (o) Ascending  ( ) Descending Search On:  [            v]  [               ] │ │
text: │ └─────────────────────────────────────────────────────────────────────────────────────────────────────┘ │
text: │                                    < New >     < Edit >     < Delete >  < Print >   < Close >           │
text: │ 16 requests, 3 cancelled, 3 finished, since 15/01/2024                                                  │
text: └─ » has the focus, ! red ────────────────────────────────────────────────────────────────────────────────┘
> heading flexMaster 3
> get flexMaster.TextMatrix(1,3)
value: "Workshop fitting, project"
> get optDescend.Value
value: true
> get flexMaster.TextMatrix(1,0)
value: "13"
> click CmdEdit
form: frmRequest "Goods Request"
> get txtRequestNo.Text
value: "GR24/12"
> close
closed: frmRequest
> # The heading row can still be made current, as a helper could: the commands refuse it.
> row flexMaster 0
> click CmdEdit
message: "No Request No. Selected " title="Shop" icon=information buttons=ok default=1
> answer ok
> heading flexMaster 9
error: flexMaster has the columns 0 to 5
> quit
closed: frmMaster
exit status 1
