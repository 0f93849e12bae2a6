# A session at the shell: it lasts as long as the shell does ($$). Every line is a connection of its own.
busctl --user call Vorlan.Server /Vorlan Vorlan.Server OpenSession us $$ shell
busctl --user call Vorlan.Session.shell /Vorlan Vorlan.Worker Create s SB_Ses_MsgSessionClose
busctl --user introspect Vorlan.Session.shell /Vorlan/SB_Ses_MsgSessionClose/1 Vorlan.SB_Ses_MsgSessionClose
busctl --user set-property Vorlan.Session.shell /Vorlan/SB_Ses_MsgSessionClose/1 Vorlan.SB_Ses_MsgSessionClose PRstr_CloseReason s 00000011
busctl --user get-property Vorlan.Session.shell /Vorlan/SB_Ses_MsgSessionClose/1 Vorlan.SB_Ses_MsgSessionClose PRstr_CloseReason
