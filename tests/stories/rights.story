form: frmMaster "Goods Request to HQ"
> # options: --user 4
> # Maximiliane may cancel and print, but neither raise nor change a request.
> get cmdnew.Enabled
value: false
> get CmdEdit.Enabled
value: false
> get CmdDelete.Enabled
value: true
> get Cmdprev.Enabled
value: true
> global gStrUserName
value: "Maximiliane Oberhofer-Lindquist"
> global gStrUserRights
value: "DP"
> click cmdnew
error: cmdnew is disabled
> dblclick flexMaster
> press flexMaster Enter
> press flexMaster Ctrl+Enter
> get form
value: "frmMaster"
> 
> # On a cancelled row there is nothing left to cancel.
> row flexMaster 4
> get flexMaster.TextMatrix(4,4)
value: "Yes"
> get CmdDelete.Enabled
value: false
> row flexMaster 5
> row flexMaster 6
> get CmdDelete.Enabled
value: true
> press flexMaster Delete
message: "Are you sure you want to Delete GR24/10 ?" title="Shop" icon=critical buttons=yesno default=2
> answer yes
form: frmcancelreason "Reason for deletion"
> get form
value: "frmcancelreason"
> set txtcanreason Not needed
> click cmdok
closed: frmcancelreason
> get form
value: "frmMaster"
> get flexMaster.TextMatrix(6,4)
value: "Yes"
> sql select GRHcancel, GRHcancelRemarks from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID=18
row: 1	Maximiliane Oberhofe:Not needed
> hover flexMaster 6 3
> get flexMaster.ToolTipText
value: "Customer glasses"
> rightclick flexMaster
menu: mnupopup
item: mnurefresh "&Refresh" enabled
> pick none
> 
> # The rest of a script may be left out: at its end everything is closed.
closed: frmMaster
exit status 1
