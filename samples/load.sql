-- First load of the master data, from the paper ledgers.
-- Names and towns are as the parties write them; do not "simplify" the accents.
-- The client on the loading desk uses the Western European code page.

begin transaction;

insert into country (code, name, currency, vat_percent) values ('DK', 'Danmark',        'DKK', 25.00);
insert into country (code, name, currency, vat_percent) values ('ES', 'España',         'EUR', 21.00);
insert into country (code, name, currency, vat_percent) values ('FR', 'France',         'EUR', 20.00);
insert into country (code, name, currency, vat_percent) values ('GB', 'United Kingdom', 'GBP', 20.00);
insert into country (code, name, currency, vat_percent) values ('IS', 'Ísland',         'ISK', 24.00);
insert into country (code, name, currency, vat_percent) values ('NO', 'Norge',          'NOK', 25.00);
insert into country (code, name, currency, vat_percent) values ('PT', 'Portugal',       'EUR', 23.00);
insert into country (code, name, currency, vat_percent) values ('SE', 'Sverige',        'SEK', 25.00);

-- Customers and suppliers -------------------------------------------------

insert into party (kind, name, tax_number, country) values
    ('customer', 'Rederi Björkö AB',                 'SE5560001122', 'SE'),
    ('customer', 'Søndre Fiskeri og Mølle',          'NO998877665',  'NO'),
    ('customer', 'Compañía Naviera del Cantábrico',  'ESA15000333',  'ES'),
    ('customer', 'Armement Le Goëland – Frères Le Gall', 'FR40303265045', 'FR'),
    ('customer', 'Útgerðarfélag Ísafjarðar',         null,           'IS'),
    ('supplier', 'Corderie de l’Élorn',              'FR12345678901', 'FR'),
    ('supplier', 'Sjöbergs Måleri & Färg',           'SE5560004455', 'SE'),
    ('supplier', 'Cordoaria São Julião, Lda.',       'PT500100144',  'PT'),
    ('both',     'Hargreaves & Daughters “Ship Stores”', 'GB123456789', 'GB'),
    ('both',     'Ærø Skibsværft ApS',               'DK12345674',   'DK');

insert into address (party_id, purpose, line_1, postcode, town, country)
select party_id, 'office', 'Norra Hamngatan 4', '411 14', 'Göteborg', 'SE'
from   party where name = 'Rederi Björkö AB';

insert into address (party_id, purpose, line_1, postcode, town, country)
select party_id, 'delivery', 'Fiskerikaia 2b', '6002', 'Ålesund', 'NO'
from   party where name = 'Søndre Fiskeri og Mølle';

insert into address (party_id, purpose, line_1, postcode, town, country)
select party_id, 'invoice', 'Av. del Puerto, 17 – 3º Izq.', '15006', 'A Coruña', 'ES'
from   party where name = 'Compañía Naviera del Cantábrico';

insert into address (party_id, purpose, line_1, postcode, town, country)
select party_id, 'office', '8, quai de l’Aber-Benoît', '29870', 'Landéda', 'FR'
from   party where name like 'Armement Le Goëland%';

-- Articles ----------------------------------------------------------------

insert into article (sku, description, unit, weight_kg) values
    ('ROPE-PA-12',  'Mooring rope, polyamide, 12 mm Ø, per metre',    'm',   0.089),
    ('ROPE-PA-24',  'Mooring rope, polyamide, 24 mm Ø, per metre',    'm',   0.355),
    ('SHAK-D-10',   'Shackle, D form, 10 mm, load ½ t',               'pcs', 0.140),
    ('SHAK-D-16',   'Shackle, D form, 16 mm, load 1¼ t',              'pcs', 0.520),
    ('PAINT-AF-25', 'Antifouling, “Grön Måne”, 2.5 l, 5–30 °C',       'tin', 4.300),
    ('PAINT-TC-10', 'Top coat, white, 1 l ± 2 %',                     'tin', 1.350),
    ('LAMP-AR-24',  'All-round lamp, 24 V, 2+ nautical miles',       'pcs', 0.410),
    ('FLARE-RED',   'Hand flare, red, 60 s, £ by the dozen',          'pcs', 0.240);

insert into article_price (article_id, currency, valid_from, amount)
select article_id, 'EUR', date '2024-01-01', 1.85 from article where sku = 'ROPE-PA-12';
insert into article_price (article_id, currency, valid_from, amount)
select article_id, 'EUR', date '2024-01-01', 6.40 from article where sku = 'ROPE-PA-24';
insert into article_price (article_id, currency, valid_from, amount)
select article_id, 'EUR', date '2024-01-01', 89.90 from article where sku = 'PAINT-AF-25';

-- Warehouses --------------------------------------------------------------

insert into warehouse values (1, 'Göteborg, Lundbyhamnen', 'SE');
insert into warehouse values (2, 'København, Nordhavn',    'DK');
insert into warehouse values (3, 'Setúbal, Doca das Fontaínhas', 'PT');

insert into stock (warehouse_id, article_id, bin, quantity)
select w.warehouse_id, a.article_id, 'A-' || lpad(cast(w.warehouse_id as varchar(2)), 2, '0'), 100
from   warehouse w cross join article a
where  a.sku like 'ROPE%' or a.sku like 'SHAK%';

commit;
