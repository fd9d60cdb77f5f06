{
  "format": 2,
  "model": "gb_a3.frm",
  "note": "图框 GB/T 10609.1",
  "sheets": [
    {"size":"A3","tables":[{"id":1,"place":[235,53],"widths":[16,16,32,20,16,26,54],"heights":[8,8,8,8,8,8],"cells":[{"row":2,"column":1,"text":"设计"},{"row":3,"column":1,"text":"校核"},{"row":4,"column":1,"text":"审核"},{"row":5,"column":1,"text":"工艺"},{"row":6,"column":1,"text":"批准"},{"row":1,"column":1,"text":"标记"},{"row":1,"column":2,"text":"处数"},{"row":1,"column":3,"text":"更改文件号"},{"row":1,"column":4,"text":"签名"},{"row":1,"column":5,"text":"日期"},{"row":2,"column":6,"text":"材料"},{"row":1,"column":7,"text":"&名称"},{"row":3,"column":6,"text":"重量"},{"row":4,"column":6,"text":"比例"},{"row":4,"column":7,"text":"&scale"},{"row":5,"column":6,"text":"图号"},{"row":5,"column":7,"text":"&图号"},{"row":6,"column":6,"text":"第 1 张"},{"row":6,"column":7,"text":"羽石机械设计室"}]}]}
  ]
}
