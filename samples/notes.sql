/* 在庫確認の手順書（大阪倉庫）
   ─────────────────────────────
   毎週金曜日の棚卸しの前に、上から順番に実行してください。
   結果が空でない場合は、必ず担当者に連絡すること。
   顔文字は状態表示に使います：😀 正常　😐 注意　😨 至急  */

-- １．引当数が在庫数を超えている品目
select s.warehouse_id as 倉庫,
       a.sku          as 品番,
       a.description  as 品名,
       s.quantity     as 在庫数,
       s.reserved     as 引当数
from   chandlery.stock s
join   chandlery.article a on a.article_id = s.article_id
where  s.reserved > s.quantity;

-- ２．三か月動きのない品目
--     季節商品（花火・信号紅炎など）は対象外です。
select a.sku as 品番, a.description as 品名, max(o.ordered_on) as 最終受注日
from   chandlery.article a
left   join chandlery.sales_order_line l on l.article_id = a.article_id
left   join chandlery.sales_order o on o.order_id = l.order_id
where  a.discontinued is null
and    a.sku not like 'FLARE%'
group  by a.sku, a.description
having max(o.ordered_on) < current_date - interval '3' month
order  by 最終受注日;

-- ３．状態の一覧
select case
           when s.quantity = 0               then '😨 在庫切れ'
           when s.quantity - s.reserved < 10 then '😐 残りわずか'
           else                                   '😀 十分'
       end          as 状態,
       count(*)     as 件数
from   chandlery.stock s
group  by 1
order  by 件数 desc;

-- Заметки смены (склад в Мурманске):
--   • накладные за март сверены, расхождений нет;
--   • «ROPE-PA-24» лежит в ячейке Б-07, а не в Б-01 — исправить после инвентаризации.
update chandlery.stock
set    bin = 'Б-07'
where  warehouse_id = 4
and    bin = 'Б-01'
and    article_id = (select article_id from chandlery.article where sku = 'ROPE-PA-24');

-- הערה: הספק החדש שולח את החשבוניות בעברית, יש לשמור את השם כפי שהוא.
update chandlery.party set name = 'ציוד ימי חיפה בע״מ' where name = 'Haifa Marine';

-- Σημείωση: το όνομα του νέου πελάτη γράφεται με ελληνικά, όχι με λατινικά.
update chandlery.party set name = 'Εφοδιαστική Πειραιώς' where name = 'Efodiastiki Pireos';
