kind UGS
surface printer
size 7.5
box   37.1450
box  126.3000
box    0.0050
box    0.0010
point 37.25 126.5 가
point 37.26 126.512 나
.
ScaleMode = 1
Font = 굴림체
EndDoc
DrawWidth = 1.3000
Line 1034.1049 11907.2577 10765.1653 11907.2577 0 6
fontsize = 9.7500
CurrentX = 1217.7098
CurrentY = 11705.3565
print   37-14-50
Line 1034.1049 10071.2086 10765.1653 10071.2086 0 6
fontsize = 9.7500
CurrentX = 758.6975
CurrentY = 9869.3074
print   37-15-00
Line 1034.1049 8235.1595 10765.1653 8235.1595 0 6
fontsize = 9.7500
CurrentX = 758.6975
CurrentY = 8033.2583
print   37-15-10
Line 1034.1049 6399.1104 10765.1653 6399.1104 0 6
fontsize = 9.7500
CurrentX = 758.6975
CurrentY = 6197.2091
print   37-15-20
Line 1034.1049 4563.0612 10765.1653 4563.0612 0 6
fontsize = 9.7500
CurrentX = 758.6975
CurrentY = 4361.1600
print   37-15-30
Line 1034.1049 2727.0121 10765.1653 2727.0121 0 6
fontsize = 9.7500
CurrentX = 758.6975
CurrentY = 2525.1109
print   37-15-40
Line 1309.5123 12182.6651 1309.5123 2451.6049 0 6
fontsize = 9.7500
print 
CreateFontIndirectA 81 900 400 1 굴림체
SelectObject
TextOutA 431 5191 10  126-30-00
SelectObject
DeleteObject
Line 3145.5614 12182.6651 3145.5614 2451.6049 0 6
fontsize = 9.7500
print 
CreateFontIndirectA 81 900 400 1 굴림체
SelectObject
TextOutA 1196 5191 10  126-30-10
SelectObject
DeleteObject
Line 4981.6106 12182.6651 4981.6106 2451.6049 0 6
fontsize = 9.7500
print 
CreateFontIndirectA 81 900 400 1 굴림체
SelectObject
TextOutA 1961 5191 10  126-30-20
SelectObject
DeleteObject
Line 6817.6594 12182.6651 6817.6594 2451.6049 0 6
fontsize = 9.7500
print 
CreateFontIndirectA 81 900 400 1 굴림체
SelectObject
TextOutA 2726 5191 10  126-30-30
SelectObject
DeleteObject
Line 8653.7089 12182.6651 8653.7089 2451.6049 0 6
fontsize = 9.7500
print 
CreateFontIndirectA 81 900 400 1 굴림체
SelectObject
TextOutA 3491 5191 10  126-30-40
SelectObject
DeleteObject
Line 10489.7583 12182.6651 10489.7583 2451.6049 0 6
fontsize = 9.7500
print 
CreateFontIndirectA 81 900 400 1 굴림체
SelectObject
TextOutA 4256 5191 10  126-30-50
SelectObject
DeleteObject
DrawWidth = 2.6000
Circle 1309.5123 10071.6569 46.0688 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.3000
DrawWidth = 1.8200
Line 1309.5123 9924.2369 1309.5123 10217.8998 0 6
Line 1162.0923 10071.6569 1455.7552 10071.6569 0 6
fontsize = 9.7500
CurrentX = 1034.1049
CurrentY = 9732.0520
print 가
DrawWidth = 2.6000
Circle 9241.2440 3461.8802 46.0688 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.3000
DrawWidth = 1.8200
Line 9241.2440 3314.4602 9241.9301 3609.2326 0 6
Line 9093.8240 3461.8802 9388.1731 3462.9897 0 6
fontsize = 9.7500
CurrentX = 8965.8370
CurrentY = 3122.2753
print 나
fontsize = 13.0000
CurrentX = 1034.1049
CurrentY = 13535.3068
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 13.0000
CurrentX = 1034.1049
CurrentY = 13902.5166
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
EndDoc
