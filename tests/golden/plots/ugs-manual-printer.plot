kind UGS
surface printer
size 8
manual 37.25 126.5 1.0 0.25
point 37.251 126.501 가
.
ScaleMode = 1
Font = 굴림체
EndDoc
DrawWidth = 1.3000
Line 1034.1049 11907.2577 10765.1653 11907.2577 0 6
fontsize = 10.4000
CurrentX = 1217.7098
CurrentY = 11694.9565
print   37-15-00
Line 1034.1049 9612.1964 10765.1653 9612.1964 0 6
fontsize = 10.4000
CurrentX = 758.6975
CurrentY = 9399.8951
print   37-30-00
Line 1034.1049 7317.1350 10765.1653 7317.1350 0 6
fontsize = 10.4000
CurrentX = 758.6975
CurrentY = 7104.8338
print   37-45-00
Line 1034.1049 5022.0736 10765.1653 5022.0736 0 6
fontsize = 10.4000
CurrentX = 758.6975
CurrentY = 4809.7724
print   38-00-00
Line 1034.1049 2727.0123 10765.1653 2727.0123 0 6
fontsize = 10.4000
CurrentX = 758.6975
CurrentY = 2514.7110
print   38-15-00
Line 1309.5123 12182.6651 1309.5123 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 431 5191 10  126-30-00
SelectObject
DeleteObject
Line 3604.5736 12182.6651 3604.5736 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 1387 5191 10  126-45-00
SelectObject
DeleteObject
Line 5899.6350 12182.6651 5899.6350 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 2343 5191 10  127-00-00
SelectObject
DeleteObject
Line 8194.6961 12182.6651 8194.6961 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 3300 5191 10  127-15-00
SelectObject
DeleteObject
Line 10489.7572 12182.6651 10489.7572 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 4256 5191 10  127-30-00
SelectObject
DeleteObject
DrawWidth = 2.6000
Circle 1318.6925 11898.0775 49.1400 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.3000
DrawWidth = 1.8200
Line 1318.6925 11740.8295 1318.6875 12055.3217 0 6
Line 1161.4445 11898.0775 1475.9267 11898.0825 0 6
fontsize = 10.4000
CurrentX = 1043.2851
CurrentY = 11548.0726
print 가
fontsize = 13.0000
CurrentX = 1034.1049
CurrentY = 13535.3068
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 13.0000
CurrentX = 1034.1049
CurrentY = 13902.5166
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
EndDoc
